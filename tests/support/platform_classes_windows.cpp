#include "support/platform_classes.h"

#include "windows/class_registry.h"
#include "windows/com_apartment.h"

namespace rf::test {

automation::ClassRegistry& platformClasses()
{
    static native::ComApartment apartment;
    static native::ComClassRegistry classes;
    return classes;
}

} // namespace rf::test
