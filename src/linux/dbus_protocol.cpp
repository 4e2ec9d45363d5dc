#include "linux/dbus_protocol.h"

#include <QStringList>
#include <algorithm>

namespace rf::native::dbus {

namespace {

constexpr qsizetype longestBusName = 255;

bool isDigit(QChar sign) { return sign >= u'0' && sign <= u'9'; }

bool isElementSign(QChar sign)
{
    return isDigit(sign) || (sign >= u'A' && sign <= u'Z') || (sign >= u'a' && sign <= u'z') || sign == u'_'
        || sign == u'-';
}

bool isElement(const QString& element) { return !element.isEmpty() && std::ranges::all_of(element, isElementSign); }

} // namespace

std::optional<quint64> numberIn(const QString& path, QLatin1StringView folder)
{
    if (!path.startsWith(folder))
        return std::nullopt;
    bool isNumber = false;
    const quint64 number = QStringView{path}.sliced(folder.size()).toULongLong(&isNumber);
    return isNumber ? std::optional{number} : std::nullopt;
}

QString busName(TextView className)
{
    QStringList elements = qtText(className).split(u'.');
    if (elements.size() < 2 || !std::ranges::all_of(elements, isElement))
        return {};
    for (QString& element : elements)
        if (isDigit(element.front()))
            element.prepend(u'_');
    const QString name = elements.join(u'.');
    return name.size() <= longestBusName ? name : QString{};
}

} // namespace rf::native::dbus
