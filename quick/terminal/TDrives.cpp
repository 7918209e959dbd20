#include "terminal/TDrives.h"

#include "module/SharedObject.h"
#include "module/TBackground.h"
#include "terminal/SizeText.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <thread>

namespace {

const int LookMs = 2000;
const double Unknown = std::numeric_limits<double>::quiet_NaN();

QString Translated(const char* text) { return QCoreApplication::translate("Drives", text); }

QString FreeText(const std::optional<tagSpace>& space)
{
    return space ? Translated(QT_TRANSLATE_NOOP("Drives", "%1 free of %2"))
                       .arg(SizeText(space->free), SizeText(space->total))
                 : Translated(QT_TRANSLATE_NOOP("Drives", "Not known"));
}

bool AreSame(const std::optional<tagSpace>& one, const std::optional<tagSpace>& other)
{
    return one.has_value() == other.has_value() && (!one || (one->free == other->free && one->total == other->total));
}

} // namespace

TDrives::TDrives(QObject* parent)
    : QObject(parent)
    , m_InternalText(FreeText(m_Internal))
    , m_StickText(FreeText(m_Stick))
    , m_MemoryText(FreeText(m_Memory))
{
    m_Timer.setSingleShot(true);
    m_Timer.setInterval(LookMs);
    connect(&m_Timer, &QTimer::timeout, this, &TDrives::Look);
    Look();
}

double TDrives::Free(const TSpace& space) { return space ? static_cast<double>(space->free) : Unknown; }
double TDrives::Total(const TSpace& space) { return space ? static_cast<double>(space->total) : Unknown; }

TDrives::tagLook TDrives::LookNow()
{
    const tagDriveSpace stick = Storage::Stick();
    const double cores = std::max(1U, std::thread::hardware_concurrency());
    const double load = static_cast<double>(Storage::Load().value_or(0)) / cores;
    return {Storage::InternalDrive().space, stick.isMounted, stick.space, Storage::Memory(), std::min(load, 1.0)};
}

/// The next look begins when this one is taken: a drive that does not answer gets no queue of looks.
void TDrives::Look()
{
    TBackground::Lane("drives").Run(this, LookNow, [this](const tagLook& look) {
        if (m_IsShown)
            return;
        Take(look);
        m_Timer.start();
    });
}

void TDrives::Take(const tagLook& look)
{
    const auto takeSpace = [this](TSpace& kept, const TSpace& space, void (TDrives::*changed)()) {
        if (AreSame(kept, space))
            return;
        kept = space;
        emit(this->*changed)();
    };
    const auto takeText = [this](QString& kept, const QString& text, void (TDrives::*changed)()) {
        if (kept == text)
            return;
        kept = text;
        emit(this->*changed)();
    };
    takeSpace(m_Internal, look.internal, &TDrives::internalChanged);
    takeText(m_InternalText, FreeText(look.internal), &TDrives::internalTextChanged);
    takeSpace(m_Stick, look.stick, &TDrives::stickChanged);
    takeText(m_StickText, look.hasStick ? FreeText(look.stick) : Translated(QT_TRANSLATE_NOOP("Drives", "No stick")),
             &TDrives::stickTextChanged);
    takeSpace(m_Memory, look.memory, &TDrives::memoryChanged);
    takeText(m_MemoryText, FreeText(look.memory), &TDrives::memoryTextChanged);
    if (m_HasStick != look.hasStick) {
        m_HasStick = look.hasStick;
        emit hasStickChanged();
    }
    if (m_Load != look.load) {
        m_Load = look.load;
        emit loadChanged();
    }
}

void TDrives::Show(const tagShownDrives& drives)
{
    m_IsShown = true;
    m_Timer.stop();
    Take({drives.internal, drives.stick.has_value(), drives.stick, drives.memory, drives.load});
}

void CabQuick::ShowDrives(const tagShownDrives& drives) { SharedObject<TDrives>()->Show(drives); }
