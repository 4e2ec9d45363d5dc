#include "linux/rfhost/windows/calendar_face.h"

#include "linux/qt_text.h"
#include "linux/rfhost/windows/qt_date.h"

namespace rf::native {

Text spokenEntry(const host::CalendarEntry& entry)
{
    Text text = entry.subject.empty() ? Text{u"No subject"} : entry.subject;
    text += u", " + textOf(dayText(entry.start));
    if (entry.allDay)
        text += u", all day";
    else
        text += u", " + textOf(timeText(entry.start)) + u" – " + textOf(timeText(entry.end));
    if (!entry.location.empty())
        text += u", " + entry.location;
    return entry.isRecurring() ? text + u", one of a series" : text;
}

} // namespace rf::native
