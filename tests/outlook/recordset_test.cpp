#include "member_use.h"

#include "outlook/recordset.h"

namespace rf::outlook {

using namespace test;

TEST(RecordsetFace, UsesTheMembersOfTheComponent)
{
    const Variant other = someObject();
    expectUses<Recordset>({
        {u"EOF", Get, {}, true, [](auto& rows) { return rows.eof(); }},
        {u"BOF", Get, {}, false, [](auto& rows) { return rows.bof(); }},
        {u"Fields", Get, {}, other, [](auto& rows) { return rows.fields(); }},
        {u"MoveFirst", Call, {}, {}, [](auto& rows) { rows.moveFirst(); }},
        {u"MoveNext", Call, {}, {}, [](auto& rows) { rows.moveNext(); }},
        {u"Find", Call, {u"Name = 'a'"}, {}, [](auto& rows) { rows.find(u"Name = 'a'"); }},
        {u"AddNew", Call, {}, {}, [](auto& rows) { rows.addNew(); }},
        {u"Update", Call, {}, {}, [](auto& rows) { rows.update(); }},
    });
    expectUses<RecordsetFields>({
        {u"Count", Get, {}, 2, [](auto& fields) { return fields.count(); }},
        {u"Item", Get, {1}, other, [](auto& fields) { return fields.item(1); }},
    });
    expectUses<RecordsetField>({
        {u"Name", Get, {}, u"Setting", [](auto& field) { return field.name(); }},
        {u"Value", Get, {}, u"Theatre", [](auto& field) { return field.value(); }},
        {u"Value", Put, {u"Theatre"}, {}, [](auto& field) { field.setValue(u"Theatre"); }},
    });
}

} // namespace rf::outlook
