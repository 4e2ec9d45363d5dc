#include "storage/simple_list.h"

#include "app/session.h"
#include "automation/conversion.h"
#include "storage/list_filling.h"

namespace rf {

namespace {

/// The column that holds the list; the first one numbers the rows.
constexpr std::int32_t listColumn = 1;

/// The current row becomes the first one whose column has this text, or none does.
bool findRow(const outlook::Recordset& recordset, TextView column, TextView text)
{
    if (recordset.eof() && recordset.bof())
        return false;
    // A search goes on from the current row.
    recordset.moveFirst();
    recordset.find(Text{column} + u" = '" + replaceAll(text, u"'", u"''") + u"'");
    return !recordset.eof();
}

} // namespace

cSimpleList::cSimpleList(Session& session)
    : session_(session)
    , entries_(session.scripting.fncCreateDic())
{
}

Text cSimpleList::ToString() const { return Text{trim(join(ToArray(), lineBreak))}; }

void cSimpleList::FromString(TextView JoinedList)
{
    entries_ = session_.scripting.fncCreateDic();
    for (const TextView line : splitViews(JoinedList, lineBreak))
        addIfNew(line);
}

void cSimpleList::AddToComboOrList(ui::ListControl& cmbCombo, TextView strDefaultValue) const
{
    fillList(cmbCombo, ToArray(), strDefaultValue);
}

void cSimpleList::FromRS(const outlook::Recordset& adrRS)
{
    if (!adrRS)
        return;
    for (; !adrRS.eof(); adrRS.moveNext()) {
        const auto value = adrRS.fields().item(listColumn).value();
        // A row may have no value in the column, which is no text.
        if (!value.is<automation::Null>())
            addIfNew(toText(session_.services.regional, value));
    }
}

void cSimpleList::FromArray(std::span<const Text> entries)
{
    for (const Text& entry : entries)
        addIfNew(entry);
}

void cSimpleList::FromComboOrList(const ui::ListControl& control)
{
    const std::int32_t count = control.listCount();
    for (std::int32_t position = 0; position < count; ++position)
        addIfNew(control.list(position));
}

std::vector<Text> cSimpleList::ToArray() const { return entries_.keys(); }

void cSimpleList::ToRS(const outlook::Recordset& adrRS) const
{
    const Text column = adrRS.fields().item(listColumn).name();
    for (const Text& entry : ToArray()) {
        if (findRow(adrRS, column, entry))
            continue;
        adrRS.addNew();
        adrRS.fields().item(listColumn).setValue(entry);
        adrRS.update();
    }
}

Text cSimpleList::RandomItem() const
{
    const auto entries = ToArray();
    return entries.empty() ? Text{} : entries[randomPosition(session_.randomNumbers, entries.size())];
}

void cSimpleList::addIfNew(TextView entry)
{
    if (!entry.empty() && !entries_.exists(entry))
        entries_.add(entry, entry);
}

} // namespace rf
