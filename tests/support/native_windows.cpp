#include "support/native.h"
#include "windows/system.h"

namespace rf::test {

std::string_view builtInLanguageTable() { return native::WindowsSystem{{}}.resource(u"CUSTOM", u"LANGUAGE"); }

} // namespace rf::test
