#pragma once

#include <QCoreApplication>
#include <QtTest>

/// Runs the tests of a class that needs no display, and so no plugin for one.
template <class Test>
int RunCoreTest(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
