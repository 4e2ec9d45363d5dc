#pragma once

#include "basic/text.h"

#include <QString>

namespace rf::native {

[[nodiscard]] inline QString qtText(TextView text)
{
    return QStringView{text.data(), static_cast<qsizetype>(text.size())}.toString();
}

[[nodiscard]] inline Text textOf(const QString& text) { return text.toStdU16String(); }

} // namespace rf::native
