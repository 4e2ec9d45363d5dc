#pragma once

#include "basic/regional.h"

#include <cstdint>

namespace rf {

/// What a booking is made for, with the colour in which its bookings are shown. Its text form is "Marketing;33023".
class cProject {
public:
    Text ProjectName;
    /// Red + 256 * green + 65536 * blue.
    std::int32_t ProjectColor = 0;

    [[nodiscard]] Text ToString() const;
    /// Takes name and colour from a text form; what stands behind a second ";" is ignored. A colour that is missing, no
    /// number to the user, or too big for 32 bits is 0.
    void FromString(const Regional& regional, TextView StringToParse);
};

} // namespace rf
