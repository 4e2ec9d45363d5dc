#include "linux/browser_content.h"

#include "automation/local_object.h"
#include "linux/qt_text.h"

#include <QApplication>
#include <QFile>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QStringDecoder>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>

namespace rf::native {

namespace {

using automation::Arguments;
using automation::LocalMember;
using automation::LocalObject;
using automation::Variant;

/// A larger page than anybody writes by hand; the rest of one is left out.
constexpr qint64 largestPage = 16LL * 1024 * 1024;

class ClosedBrowser final : public QTextBrowser {
public:
    explicit ClosedBrowser(QWidget* parent)
        : QTextBrowser(parent)
    {
        setOpenLinks(false);
        setUndoRedoEnabled(false);
        setFrameShape(QFrame::NoFrame);
        constexpr qreal margin = 16;
        document()->setDocumentMargin(margin);
    }
    /// Pictures, style sheets, frames: an empty answer keeps Qt from looking for them.
    QVariant loadResource(int, const QUrl&) override { return QByteArray{}; }
};

class ClosedPage final : public QTextDocument {
protected:
    QVariant loadResource(int, const QUrl&) override { return QByteArray{}; }
};

/// What the browser shows, for the objects that programs hold and for the widget.
struct Page {
    QString html;
    PrintPage print;
    QPointer<QTextBrowser> view;

    void show() const
    {
        if (view != nullptr)
            view->setHtml(html);
    }
};

QString readPage(const QString& address)
{
    const QUrl url = QUrl::fromUserInput(address, QString{}, QUrl::AssumeLocalFile);
    QFile file{url.toLocalFile()};
    if (!url.isLocalFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(largestPage);
    return QStringDecoder::decoderForHtml(bytes)(bytes);
}

class DocumentObject final : public LocalObject<DocumentObject> {
public:
    explicit DocumentObject(std::shared_ptr<Page> page)
        : page_(std::move(page))
    {
    }
    static constexpr TextView className = u"HTMLDocument";
    static std::span<const LocalMember<DocumentObject>> members()
    {
        static constexpr LocalMember<DocumentObject> table[]{
            {u"execCommand",
                [](DocumentObject& self, const Arguments& arguments) {
                    return Variant{equalIgnoringCase(arguments[0].text(), u"print") && self.print()};
                }},
        };
        return table;
    }

private:
    [[nodiscard]] bool print() const
    {
        ClosedPage document;
        document.setHtml(page_->html);
        return page_->print(document);
    }

    std::shared_ptr<Page> page_;
};

class BrowserObject final : public LocalObject<BrowserObject> {
public:
    explicit BrowserObject(std::shared_ptr<Page> page)
        : page_(std::move(page))
    {
    }
    static constexpr TextView className = u"WebBrowser";
    static std::span<const LocalMember<BrowserObject>> members()
    {
        using Self = BrowserObject;
        static constexpr LocalMember<Self> table[]{
            {u"Navigate2",
                [](Self& self, const Arguments& arguments) {
                    self.page_->html = readPage(qtText(arguments[0].text()));
                    self.page_->show();
                    return Variant{};
                }},
            {u"Document",
                [](Self& self, const Arguments&) { return Variant{std::make_shared<DocumentObject>(self.page_)}; }},
        };
        return table;
    }

private:
    std::shared_ptr<Page> page_;
};

class BrowserContent final : public ControlContent {
public:
    explicit BrowserContent(PrintPage print)
        : page_(std::make_shared<Page>(Page{{}, std::move(print), {}}))
    {
    }
    [[nodiscard]] automation::Object object() const override
    {
        return automation::Object{std::make_shared<BrowserObject>(page_)};
    }
    [[nodiscard]] QWidget* makeView(QWidget* parent) override
    {
        page_->view = new ClosedBrowser{parent};
        page_->show();
        return page_->view;
    }

private:
    std::shared_ptr<Page> page_;
};

} // namespace

bool printByDialog(QTextDocument& page)
{
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return false;
    QPrinter printer{QPrinter::HighResolution};
    QPrintDialog dialog{&printer};
    if (dialog.exec() != QDialog::Accepted)
        return false;
    page.print(&printer);
    return true;
}

std::unique_ptr<ControlContent> makeBrowserContent(PrintPage print)
{
    return std::make_unique<BrowserContent>(std::move(print));
}

} // namespace rf::native
