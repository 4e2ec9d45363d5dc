#include "linux/spreadsheet_content.h"

#include "linux/spreadsheet_objects.h"
#include "linux/spreadsheet_view.h"

namespace rf::native {

namespace {

class SpreadsheetContent final : public ControlContent {
public:
    SpreadsheetContent(std::shared_ptr<const Regional> regional, spreadsheet::Generation generation)
        : sheet_(std::make_shared<spreadsheet::Sheet>(std::move(regional), generation))
    {
    }
    SpreadsheetContent(const SpreadsheetContent&) = delete;
    SpreadsheetContent& operator=(const SpreadsheetContent&) = delete;
    ~SpreadsheetContent() override { sheet_->SelectionChange = nullptr; }

    [[nodiscard]] automation::Object object() const override { return spreadsheet::makeSpreadsheetObject(sheet_); }
    [[nodiscard]] QWidget* makeView(QWidget* parent) override { return new spreadsheet::View{sheet_, parent}; }
    void hearSelection(const std::function<void(const Text& address)>& heard) override
    {
        sheet_->SelectionChange = heard;
    }

private:
    std::shared_ptr<spreadsheet::Sheet> sheet_;
};

} // namespace

std::unique_ptr<ControlContent> makeSpreadsheetContent(
    std::shared_ptr<const Regional> regional, spreadsheet::Generation generation)
{
    return std::make_unique<SpreadsheetContent>(std::move(regional), generation);
}

} // namespace rf::native
