#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <langinfo.h>
#endif

#include <clocale>
#include <cstdlib>
#include <string_view>

/// What quenmora-export asks of the system beyond Qt.
namespace Platform {

/// Lets what is printed be read. Build scripts often run in the locale "C", and newer versions of Qt complain of its
/// encoding at every start; a console of Windows takes another encoding for the program's.
inline void speakUtf8()
{
#ifdef Q_OS_WIN
    static const UINT before = GetConsoleOutputCP(); // which the console keeps after the program
    std::atexit([] { SetConsoleOutputCP(before); });
    SetConsoleOutputCP(CP_UTF8);
#else
    std::setlocale(LC_ALL, "");
    if (std::setlocale(LC_MESSAGES, nullptr) == std::string_view("C"))
        qunsetenv("LANGUAGE"); // which other programs do not look at in this locale, either
    if (nl_langinfo(CODESET) != std::string_view("UTF-8"))
        qputenv("LC_ALL", "C.UTF-8");
#endif
}

} // namespace Platform
