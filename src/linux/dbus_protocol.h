#pragma once

#include "basic/text.h"

#include <QString>
#include <optional>

namespace rf::native::dbus {

// What both ends of the transport agree on. One interface carries everything:
//
//   at /automation             Root(class s) -> (yv)              the object that a class name stands for
//                              AddRef(object o, holder s)         gives another process a reference of its own
//                              Release(a(ot))                     gives references up, so many of each object
//                              Traffic(process s) -> ttt          calls answered, events raised and handlers connected,
//                                                                 for one process or, without a name, for all
//                              Line() -> st                       where a line past the bus may be opened, and the word
//                              Hello(word t)                      said first on such a line; all else may follow on it
//   at /automation/object/N    Invoke(member s, kind y, arguments a(yv)) -> (yv), a(u(yv))
//                              Advise(events s, sink t), Unadvise(sink t)
//   at /automation/sink/N      Event(event s, arguments a(yv)) -> a(u(yv))
//
// A value (yv) is a tag and what D-Bus carries of it. a(u(yv)) are the arguments by reference that were assigned, by
// their position. Whoever sends an object to a process gives it one reference to it: to an object of its own by
// counting, to one of a third process by an AddRef that is answered before. The last reference ends the object's path.
// A failure is an error reply with the number, description, source and member behind its message.

inline QString interfaceName() { return QStringLiteral("roomfold.Automation"); }
inline QString errorName() { return QStringLiteral("roomfold.Automation.Error"); }

inline QString rootPath() { return QStringLiteral("/automation"); }
inline constexpr QLatin1StringView objectFolder{"/automation/object/"};
inline constexpr QLatin1StringView sinkFolder{"/automation/sink/"};

inline QString objectPath(quint64 number) { return objectFolder + QString::number(number); }
inline QString sinkPath(quint64 number) { return sinkFolder + QString::number(number); }
/// The number behind a folder; nothing when the path is no such.
[[nodiscard]] std::optional<quint64> numberIn(const QString& path, QLatin1StringView folder);

/// Tells the kinds of values apart on their way. The numbers are the protocol's.
enum class Tag : uchar {
    Empty,
    Null,
    Missing,
    Boolean,
    Byte,
    Int16,
    Int32,
    Single,
    Double,
    Currency,
    Date,
    Text,
    Object,
    Array,
    Reference
};

inline QString qtText(TextView text) { return QStringView{text}.toString(); }
inline Text textOf(const QString& text) { return text.toStdU16String(); }

/// The bus name of a class: its own name, except that no element may begin with a digit, so the version behind
/// "Outlook.Application.11" becomes "_11". Empty when the class can have no bus name: without a dot, in braces, or
/// with signs that D-Bus does not allow.
[[nodiscard]] QString busName(TextView className);

} // namespace rf::native::dbus
