#include "linux/demo/demo_system.h"

#include <cstdlib>
#include <iostream>

namespace rf::demo {

void DemoSystem::endProcess()
{
    std::cout.flush();
    std::_Exit(EXIT_FAILURE);
}

} // namespace rf::demo
