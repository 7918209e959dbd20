#include "CoreTest.h"
#include "TestHost.h"

#include "logs/TNEMADiagnosticLogProxy.h"
#include "logs/TUserDiagnosticLogProxy.h"
#include "logs/TUserLogAccessor.h"
#include "region/TRegionSettingsProxy.h"
#include "serialization/TSerializer.h"
#include "settings/TSettings.h"
#include "system/TImplementPathSetting.h"
#include "system/TSystemSettingsProxy.h"

#include <QtTest>

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace {

const int NotVirtual = -1;

/// Position of a member function in its class's virtual table, counted from 0, as the pointer to it tells under the
/// Itanium C++ ABI: the offset in the table plus one, or on ARM the plain offset, marked in the second word.
template <class Member>
int SlotOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words, "a pointer to member function is two words");
    std::memcpy(words, &member, sizeof words);
#if defined(__arm__) || defined(__aarch64__)
    const bool isVirtual = (words[1] & 1) != 0;
    const std::ptrdiff_t offset = words[0];
#else
    const bool isVirtual = (words[0] & 1) != 0;
    const std::ptrdiff_t offset = words[0] - 1;
#endif
    return isVirtual ? static_cast<int>(offset / static_cast<std::ptrdiff_t>(sizeof(void*))) : NotVirtual;
}

/// The last virtual function that QObject declares, in every generation of Qt.
struct tagQObjectSlots : QObject
{
    static int Last() { return SlotOf(&tagQObjectSlots::disconnectNotify); }
};

using Store = TConfigManager;
using Path = TPathSetting;
using Implement = TImplementPathSetting;
using Log = TDiagnosticLogProxy;
using NMEALog = TNEMADiagnosticLogProxy;
using UserLog = TUserDiagnosticLogProxy;

template <typename T>
int WriteSlot()
{
    return SlotOf(static_cast<TSerializer& (TSerializer::*)(const T&)>(&TSerializer::operator<<));
}

template <typename T>
int ReadSlot()
{
    return SlotOf(static_cast<TSerializer& (TSerializer::*)(T&)>(&TSerializer::operator>>));
}

} // namespace

/// Hosts and libraries of other builds call through these tables: an operation that moves breaks them without a word.
class VirtualSlots : public QObject
{
    Q_OBJECT

private slots:
    void everyOperationKeepsItsSlot_data();
    void everyOperationKeepsItsSlot();
    void laterSlotsOfTheStoreFollowInOrder();
    void theDestructorComesFirst();
};

void VirtualSlots::everyOperationKeepsItsSlot_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("expected");

    QTest::newRow("TSerializer::atEnd") << SlotOf(&TSerializer::atEnd) << 0;
    QTest::newRow("TSerializer::writeStartOfDataBlock") << SlotOf(&TSerializer::writeStartOfDataBlock) << 1;
    QTest::newRow("TSerializer::readStartOfDataBlock") << SlotOf(&TSerializer::readStartOfDataBlock) << 2;
    QTest::newRow("TSerializer << unsigned int") << WriteSlot<unsigned int>() << 3;
    QTest::newRow("TSerializer << int") << WriteSlot<int>() << 4;
    QTest::newRow("TSerializer << float") << WriteSlot<float>() << 5;
    QTest::newRow("TSerializer << double") << WriteSlot<double>() << 6;
    QTest::newRow("TSerializer << bool") << WriteSlot<bool>() << 7;
    QTest::newRow("TSerializer << QString") << WriteSlot<QString>() << 8;
    QTest::newRow("TSerializer << QVector<int>") << WriteSlot<QVector<int>>() << 9;
    QTest::newRow("TSerializer << QByteArray") << WriteSlot<QByteArray>() << 10;
    QTest::newRow("TSerializer >> unsigned int") << ReadSlot<unsigned int>() << 11;
    QTest::newRow("TSerializer >> int") << ReadSlot<int>() << 12;
    QTest::newRow("TSerializer >> float") << ReadSlot<float>() << 13;
    QTest::newRow("TSerializer >> double") << ReadSlot<double>() << 14;
    QTest::newRow("TSerializer >> bool") << ReadSlot<bool>() << 15;
    QTest::newRow("TSerializer >> QString") << ReadSlot<QString>() << 16;
    QTest::newRow("TSerializer >> QVector<int>") << ReadSlot<QVector<int>>() << 17;
    QTest::newRow("TSerializer >> QByteArray") << ReadSlot<QByteArray>() << 18;

    // Everywhere else the destructor takes slots 0 and 1.
    QTest::newRow("TConfigManager::SetParameter") << SlotOf(&Store::SetParameter) << 2;
    QTest::newRow("TConfigManager::GetParameter") << SlotOf(&Store::GetParameter) << 3;

    QTest::newRow("TSettings::Initialise") << SlotOf(&TSettings::Initialise) << 2;
    QTest::newRow("TSettings::Restore") << SlotOf(&TSettings::Restore) << NotVirtual;

    QTest::newRow("TPathSetting::Initialise") << SlotOf(&Path::Initialise) << 2;
    QTest::newRow("TPathSetting::Restore") << SlotOf(&Path::Restore) << 3;
    QTest::newRow("TPathSetting::GetName") << SlotOf(&Path::GetName) << 4;
    QTest::newRow("TPathSetting::GetPath") << SlotOf(&Path::GetPath) << 5;
    QTest::newRow("TPathSetting::GetCFFPath") << SlotOf(&Path::GetCFFPath) << 6;
    QTest::newRow("TPathSetting::SetName") << SlotOf(&Path::SetName) << 7;
    QTest::newRow("TPathSetting::GetDefaultName") << SlotOf(&Path::GetDefaultName) << 8;
    QTest::newRow("TPathSetting::GetFolderPath") << SlotOf(&Path::GetFolderPath) << 9;
    QTest::newRow("TPathSetting::GetFileName") << SlotOf(&Path::GetFileName) << 10;

    using FOfRoot = QString (Implement::*)(const QDir&) const;
    using FOfRootAndName = QString (Implement::*)(const QDir&, const QString&) const;
    QTest::newRow("TImplementPathSetting::GetFolderPath")
        << SlotOf(static_cast<FOfRoot>(&Implement::GetFolderPath)) << 9;
    QTest::newRow("TImplementPathSetting::GetFileName") << SlotOf(&Implement::GetFileName) << 10;
    QTest::newRow("TImplementPathSetting::GetFolderPath of a name")
        << SlotOf(static_cast<FOfRootAndName>(&Implement::GetFolderPath)) << NotVirtual;

    QTest::newRow("TDiagnosticLogProxy::Restore") << SlotOf(&Log::Restore) << 2;
    QTest::newRow("TDiagnosticLogProxy::Export") << SlotOf(&Log::Export) << 3;
    QTest::newRow("TDiagnosticLogProxy::Close") << SlotOf(&Log::Close) << 4;
    QTest::newRow("TDiagnosticLogProxy::AddEntry") << SlotOf(&Log::AddEntry) << 5;
    QTest::newRow("TDiagnosticLogProxy::LogDiagnostic") << SlotOf(&Log::LogDiagnostic) << 6;
    QTest::newRow("TDiagnosticLogProxy::Lock") << SlotOf(&Log::Lock) << 7;
    QTest::newRow("TDiagnosticLogProxy::Unlock") << SlotOf(&Log::Unlock) << 8;

    QTest::newRow("TNEMADiagnosticLogProxy::Lock") << SlotOf(&NMEALog::Lock) << 7;
    QTest::newRow("TNEMADiagnosticLogProxy::Unlock") << SlotOf(&NMEALog::Unlock) << 8;
    QTest::newRow("TNEMADiagnosticLogProxy::Log") << SlotOf(&NMEALog::Log) << NotVirtual;

    using FAddEvent = bool (UserLog::*)(EDiagnosticComponent, EDiagnosticType, int, const QString&, const QString&);
    QTest::newRow("TUserDiagnosticLogProxy::Lock") << SlotOf(&UserLog::Lock) << 7;
    QTest::newRow("TUserDiagnosticLogProxy::Unlock") << SlotOf(&UserLog::Unlock) << 8;
    QTest::newRow("TUserDiagnosticLogProxy::AddEntry of an event")
        << SlotOf(static_cast<FAddEvent>(&UserLog::AddEntry)) << 9;

    const int last = tagQObjectSlots::Last();
    QTest::newRow("TUserLogAccessor::AddEntry") << SlotOf(&TUserLogAccessor::AddEntry) << last + 1;
    QTest::newRow("TUserLogAccessor::GetLoggingCategoryName")
        << SlotOf(&TUserLogAccessor::GetLoggingCategoryName) << last + 2;

    QTest::newRow("TRegionSettingsProxy::Lock") << SlotOf(&TRegionSettingsProxy::Lock) << NotVirtual;
    QTest::newRow("TRegionSettingsProxy::Unlock") << SlotOf(&TRegionSettingsProxy::Unlock) << NotVirtual;
    QTest::newRow("TSystemSettingsProxy::Lock") << SlotOf(&TSystemSettingsProxy::Lock) << NotVirtual;
    QTest::newRow("TSystemSettingsProxy::Unlock") << SlotOf(&TSystemSettingsProxy::Unlock) << NotVirtual;
}

void VirtualSlots::everyOperationKeepsItsSlot()
{
    QFETCH(int, slot);
    QFETCH(int, expected);
    QCOMPARE(slot, expected);
}

void VirtualSlots::laterSlotsOfTheStoreFollowInOrder()
{
    QVERIFY(SlotOf(&Store::HasParameter) > SlotOf(&Store::GetParameter));
    QVERIFY(SlotOf(&Store::GetDiagnosticText) > SlotOf(&Store::HasParameter));
}

void VirtualSlots::theDestructorComesFirst()
{
    QVERIFY(std::has_virtual_destructor_v<TConfigManager>);
    QVERIFY(std::has_virtual_destructor_v<TSettings>);
    QVERIFY(std::has_virtual_destructor_v<TPathSetting>);
    QVERIFY(std::has_virtual_destructor_v<TDiagnosticLogProxy>);
    QVERIFY(std::has_virtual_destructor_v<TUserLogAccessor>);
    QVERIFY(std::is_abstract_v<TDiagnosticLogProxy>);
    QVERIFY(std::is_abstract_v<TSerializer>);
    QVERIFY(!std::has_virtual_destructor_v<TSerializer>);
}

int main(int argc, char** argv) { return RunCoreTest<VirtualSlots>(argc, argv); }
#include "VirtualSlots.moc"
