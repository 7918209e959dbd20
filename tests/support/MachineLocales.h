#pragma once

#include "InOwnProcess.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QStringList>
#include <QtTest>

#include <cstdlib>

/// Languages and places in which a machine may have been set up: with digits of their own, other texts for am and pm, a
/// decimal comma, other capital letters. Qt knows them by name, whether or not the system has them installed.
const char* const MachineLocales[] = {"C",           "fa_IR.UTF-8", "ar_EG.UTF-8", "mr_IN.UTF-8", "es_ES.UTF-8",
                                      "sv_SE.UTF-8", "ja_JP.UTF-8", "zh_CN.UTF-8", "tr_TR.UTF-8", "de_DE.UTF-8"};

/// A row for each, with the name in the column "locale".
inline void AddMachineLocales()
{
    QTest::addColumn<QByteArray>("locale");
    for (const char* const locale : MachineLocales)
        QTest::newRow(locale) << QByteArray(locale);
}

/// What @p call, which returns a QStringList, answers on a machine of each locale. To be made before anything else of
/// the program: Qt reads the locale once.
template <class Call>
QMap<QByteArray, QStringList> InMachineLocales(Call call)
{
    QMap<QByteArray, QStringList> answers;
    for (const char* const locale : MachineLocales) {
        answers[locale] = InOwnProcess([locale, &call] {
            setenv("LC_ALL", locale, 1);
            int argc = 1;
            char name[] = "test";
            char* argv[] = {name, nullptr};
            const QCoreApplication application(argc, argv);
            return call();
        });
    }
    return answers;
}
