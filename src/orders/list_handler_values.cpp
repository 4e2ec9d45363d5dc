#include "orders/list_handler.h"

#include "app/session.h"
#include "automation/conversion.h"
#include "basic/conversion.h"

namespace rf::orders {

using automation::Variant;

namespace {

/// What the symbol font draws as a ticked and as an empty box.
constexpr TextView tickedBox = u"\u00FE";
constexpr TextView emptyBox = u"\u00A8";

/// The name of a value's kind, for the trace.
struct TypeName {
    TextView operator()(std::monostate) const { return u"Empty"; }
    TextView operator()(automation::Null) const { return u"Null"; }
    TextView operator()(automation::Missing) const { return u"Error"; }
    TextView operator()(bool) const { return u"Boolean"; }
    TextView operator()(std::uint8_t) const { return u"Byte"; }
    TextView operator()(std::int16_t) const { return u"Integer"; }
    TextView operator()(std::int32_t) const { return u"Long"; }
    TextView operator()(float) const { return u"Single"; }
    TextView operator()(double) const { return u"Double"; }
    TextView operator()(const Currency&) const { return u"Currency"; }
    TextView operator()(const Date&) const { return u"Date"; }
    TextView operator()(const Text&) const { return u"String"; }
    TextView operator()(const std::shared_ptr<automation::Dispatch>&) const { return u"Object"; }
    TextView operator()(const std::shared_ptr<const automation::Array>&) const { return u"Variant()"; }
    TextView operator()(automation::Reference) const { return u"Variant"; }
};

Variant valueAs(const Regional& regional, const Variant& value, ValueKind kind)
{
    switch (kind) {
    case ValueKind::Integer:
        return toInteger(regional, value);
    case ValueKind::Date:
        return toDate(regional, value);
    case ValueKind::String:
        return toText(regional, value);
    case ValueKind::Boolean:
        return toBoolean(regional, value);
    }
    return value;
}

} // namespace

void cListHandler::SetValue(TextView address, const Variant& value)
{
    session_.trace.subTrace(u"Setting value of cells: " + Text{address} + u" to a value of type "
        + Text{std::visit(TypeName{}, value.value())});
    session_.reporter.handled(u"cListHandler.SetValue", [&] {
        const auto cells = range(address);
        cells.clearContents();
        cells.setValue(value);
    });
}

Variant cListHandler::GetValue(TextView address, std::optional<ValueKind> dataType)
{
    return session_.reporter.handled(u"cListHandler.GetValue", [&] {
        Variant value = range(address).value();
        return dataType ? valueAs(session_.services.regional, value, *dataType) : value;
    });
}

void cListHandler::SetFormula(TextView address, TextView formula)
{
    session_.trace.subTrace(u"Setting formula of cells: " + Text{address} + u" to a formula: " + Text{formula});
    session_.reporter.handled(u"cListHandler.SetFormula", [&] {
        const auto cells = range(address);
        cells.clearContents();
        cells.setFormula(formula);
    });
}

void cListHandler::calculate()
{
    session_.reporter.handled(u"cListHandler.Calculate", [&] { sheet_.calculate(); });
}

void cListHandler::SetChecked(TextView address, bool value)
{
    session_.trace.subTrace(
        u"Setting checkbox value of cells: " + Text{address} + u" to the value " + Text{toText(value)});
    session_.reporter.handled(
        u"cListHandler.SetChecked", [&] { range(address).setValue(value ? tickedBox : emptyBox); });
}

bool cListHandler::GetChecked(TextView address)
{
    session_.trace.subTrace(u"Reading the value of cell " + Text{address});
    return session_.reporter.handled(
        u"cListHandler.GetChecked", [&] { return range(address).value() == Variant{tickedBox}; });
}

} // namespace rf::orders
