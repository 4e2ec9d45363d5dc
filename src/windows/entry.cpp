#include "app/main.h"
#include "app/session.h"
#include "basic/clock.h"
#include "program_version.h"
#include "windows/class_registry.h"
#include "windows/com_apartment.h"
#include "windows/process_table.h"
#include "windows/regional.h"
#include "windows/system.h"
#include "windows/toolkit.h"

#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    const rf::native::ComApartment apartment;
    rf::native::Win32Toolkit toolkit;
    rf::native::WindowsSystem system{rf::programVersion};
    rf::native::ToolhelpProcessTable processes;
    rf::native::ComClassRegistry classes;
    const auto regional = rf::native::makeRegional();
    const rf::SystemClock clock;
    rf::runProgram({*regional, clock, classes, system, processes, toolkit});
    return 0;
}
