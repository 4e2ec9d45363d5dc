#pragma once

#include "basic/text.h"

#include <array>
#include <cstdint>

namespace rf::outlook {

/// The host's classes by name and by id, the names of single versions from the newest down.
inline constexpr TextView applicationClass = u"Outlook.Application";
inline constexpr TextView applicationClassId = u"{0006F03A-0000-0000-C000-000000000046}";
inline constexpr std::array<TextView, 4> applicationClassVersions{
    u"Outlook.Application.12", u"Outlook.Application.11", u"Outlook.Application.10", u"Outlook.Application.9"};

namespace message_class {
inline constexpr TextView appointment = u"IPM.Appointment";
inline constexpr TextView meetingRequest = u"IPM.Schedule.Meeting.Request";
inline constexpr TextView post = u"IPM.Post";
/// One occurrence of a series that differs from the series.
inline constexpr TextView recurrenceException = u"IPM.OLE.CLASS.{00061055-0000-0000-C000-000000000046}";
} // namespace message_class

/// Names of the items' own fields, as `Items::sort` takes them.
namespace field {
inline constexpr TextView start = u"[Start]";
inline constexpr TextView creationTime = u"CreationTime";
} // namespace field

/// Command bars and controls that the host has by itself.
namespace host_control {
inline constexpr TextView webBar = u"Web";
inline constexpr std::int32_t refreshPage = 1020;
inline constexpr std::int32_t inviteAttendees = 1086;
} // namespace host_control

enum class ObjectClass : std::int32_t {
    Application = 0,
    NameSpace = 1,
    Folder = 2,
    Appointment = 26,
    Mail = 43,
    Post = 45,
    MeetingRequest = 53
};

enum class DefaultFolder : std::int32_t { Inbox = 6, Calendar = 9 };
/// What a folder holds, and what `Application::createItem` makes.
enum class ItemType : std::int32_t { Mail = 0, Appointment = 1, Post = 6 };
enum class UserPropertyType : std::int32_t { Text = 1, Number = 3, DateTime = 5, YesNo = 6 };
enum class CloseMode : std::int32_t { Save = 0, Discard = 1, PromptForSave = 2 };
enum class MeetingStatus : std::int32_t { NonMeeting = 0, Meeting = 1, Received = 3, Canceled = 5 };
enum class BusyStatus : std::int32_t { Free = 0, Tentative = 1, Busy = 2, OutOfOffice = 3 };
enum class FolderDisplayMode : std::int32_t { Normal = 0 };
enum class WindowState : std::int32_t { Maximized = 0, Minimized = 1, Normal = 2 };

enum class BarPosition : std::int32_t { Left = 0, Top = 1, Right = 2, Bottom = 3, Floating = 4 };
enum class ControlType : std::int32_t { Button = 1, ComboBox = 4 };
enum class ButtonStyle : std::int32_t { Automatic = 0, Icon = 1, Caption = 2, IconAndCaption = 3 };
/// Whether a combo shows its caption before the box.
enum class ComboStyle : std::int32_t { Normal = 0, Label = 1 };

enum class AlertButtons : std::int32_t { Ok = 0, OkCancel = 1, YesNo = 4 };
enum class AlertIcon : std::int32_t { None = 0, Critical = 1, Query = 2, Warning = 3, Information = 4 };
enum class AlertDefault : std::int32_t { First = 0 };
enum class AlertCancel : std::int32_t { Default = -1 };

} // namespace rf::outlook
