#pragma once

#include "TQuickTerminal.h"

#include "display/fieldwork/DemoField.h"
#include "display/fieldwork/TWork.h"
#include "nmea/TFieldSimulator.h"
#include "receiver/SimulatedField.h"
#include "receiver/TReceiver.h"
#include "system/TSystemSettingsProxy.h"

#include <QAbstractItemModel>
#include <QQmlEngine>
#include <QtTest>

#include <memory>

/// Work on a field in a terminal of its own. A display that restarts is a new TWork.
class TWorkRoom
{
public:
    /// @param isDemo false: nothing is selected.
    explicit TWorkRoom(bool isDemo = true) : m_Simulator(CabQuick::SimulatedPlan())
    {
        QString error;
        if (isDemo && !MakeDemoField(*qmlEngine(terminal.Object()), &error))
            qFatal("%s", qPrintable(error));
        Restart();
    }

    /// Ends the work, and begins it again with what is on the disk.
    void Restart()
    {
        work.reset();
        work = std::make_unique<TWork>(terminal.Named("Selections"));
        Load();
    }

    /// Waits until the files of the job are read.
    void Load() const
    {
        if (!QTest::qWaitFor([this] { return !work->IsLoading(); }, 60000))
            qFatal("the job is not loaded");
    }

    /// Sends epochs of the simulated field as if they had just been received.
    void Drive(int epochs)
    {
        for (int i = 0; i < epochs; ++i)
            CabQuick::Receiver().Show(m_Simulator.NextEpoch());
    }

    /// Selects by the names of the QML object Selections, and waits until the job is read.
    void Select(const char* property, const char* name) const
    {
        terminal.Named("Selections")->setProperty(property, QString::fromUtf8(name));
        QCoreApplication::processEvents();
        Load();
    }

    /// The sentences that the display shows.
    QStringList Problems() const
    {
        auto* const problems = qobject_cast<QAbstractItemModel*>(terminal.Named("Problems"));
        QStringList texts;
        for (int row = 0; row < problems->rowCount(); ++row)
            texts.append(problems->index(row, 0).data(problems->roleNames().key("text")).toString());
        return texts;
    }

    /// Waits until a sentence with @p words is among them, or is not.
    bool HasProblem(const char* words) const
    {
        return QTest::qWaitFor([&] { return !Problems().filter(QString::fromUtf8(words)).isEmpty(); }, 60000);
    }
    bool HasNoProblem(const char* words) const
    {
        return QTest::qWaitFor([&] { return Problems().filter(QString::fromUtf8(words)).isEmpty(); }, 60000);
    }

    /// The file of the active job's coverage, boundary or line: "Jobs/J_1/J_1.cov".
    QString FieldFile(const char* name) const
    {
        const TSystemSettingsProxy system;
        return system.GetInternalDrivePath() + system.GetCFFPath() + QString::fromUtf8(name);
    }

    TQuickTerminal terminal;
    std::unique_ptr<TWork> work;

private:
    TFieldSimulator m_Simulator;
};
