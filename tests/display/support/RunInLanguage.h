#pragma once

#include <QGuiApplication>
#include <QStringList>
#include <QtTest>

/// The main function of a test of one language. The first argument of the program names it, such as "de"; the others
/// are those of Qt Test.
template <class Test>
int RunInLanguage(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    Test test(arguments.size() > 1 ? arguments.takeAt(1) : QString());
    return QTest::qExec(&test, arguments);
}
