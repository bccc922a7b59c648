#pragma once

class QObject;

/// Runs a test object as a whole program: offscreen, and with a temporary home folder, so that no
/// test shows a window or touches the files of the person who runs it.
int runTest(QObject &test, int argc, char **argv);

/// The main function of a test program whose only test class is Class.
#define QUENMORA_TEST_MAIN(Class)                                                                                      \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        Class test;                                                                                                    \
        return runTest(test, argc, argv);                                                                              \
    }
