#include "linux/spreadsheet_view.h"

#include "linux/qt_text.h"
#include "linux/spreadsheet_icons.h"

#include <QVBoxLayout>

namespace rf::native::spreadsheet {

View::View(std::shared_ptr<Sheet> sheet, QWidget* parent)
    : QWidget(parent)
    , sheet_(std::move(sheet))
    , title_(new QLabel{this})
    , tools_(new QToolBar{this})
    , grid_(new GridView{sheet_, this})
    , tabs_(new QTabBar{this})
{
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (QWidget* part : std::initializer_list<QWidget*>{title_, tools_, grid_, tabs_})
        column->addWidget(part);
    title_->setTextFormat(Qt::PlainText);
    title_->setAutoFillBackground(true);
    title_->setBackgroundRole(QPalette::Highlight);
    title_->setForegroundRole(QPalette::HighlightedText);
    title_->setMargin(2);
    // A long caption is cut at the edge; it must not widen the form.
    title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QFont bold = title_->font();
    bold.setBold(true);
    title_->setFont(bold);
    tools_->setFocusPolicy(Qt::NoFocus);
    // As high as the captions beside them, so that the tools take no row from the cells.
    tools_->setIconSize(QSize{fontMetrics().height(), fontMetrics().height()});
    addTool(drawnIcon(ToolSign::Cut), {}, [this] { grid_->cut(); });
    addTool(drawnIcon(ToolSign::Copy), {}, [this] { grid_->copy(); });
    addTool(drawnIcon(ToolSign::Paste), {}, [this] { grid_->paste(); });
    addTool({}, QStringLiteral("A\u2193Z"), [this] { grid_->sortSelected(Order::Ascending); });
    addTool({}, QStringLiteral("Z\u2193A"), [this] { grid_->sortSelected(Order::Descending); });
    tabs_->addTab(QStringLiteral("Sheet1"));
    tabs_->setShape(QTabBar::RoundedSouth);
    tabs_->setFocusPolicy(Qt::NoFocus);
    setFocusProxy(grid_);
    sheet_->changed = [this](Change change) {
        grid_->follow(change);
        if (change == Change::Layout)
            arrange();
    };
    arrange();
}

View::~View() { sheet_->changed = nullptr; }

void View::addTool(const QIcon& icon, const QString& sign, std::function<void()> use)
{
    QAction* action = tools_->addAction(icon, sign);
    connect(action, &QAction::triggered, this, [use = std::move(use)] { use(); });
}

void View::arrange()
{
    const Appearance& appearance = sheet_->appearance();
    title_->setText(qtText(appearance.title));
    title_->setToolTip(qtText(appearance.title).toHtmlEscaped());
    title_->setVisible(appearance.titleBar);
    tools_->setVisible(appearance.toolbar);
    tabs_->setVisible(appearance.workbookTabs);
    grid_->setAccessibleName(qtText(appearance.title));
}

} // namespace rf::native::spreadsheet
