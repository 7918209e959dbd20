#include "support/TFuzzRoom.h"

#include "platform/EDecimalPoint.h"
#include "platform/EParamID.h"
#include "stores/TMemoryStore.h"
#include "support/TFuzzInput.h"
#include "terminal/TTerminal.h"

#include <QDir>
#include <QFile>

#include <stdexcept>
#include <unistd.h>

namespace {

TFuzzRoom* Room = nullptr;

const EParamID MeasureSwitches[] = {PARAM_METRIC,        PARAM_US_MEASURES, PARAM_DEGREES_MINUTES_SECONDS,
                                    PARAM_24_HOUR_CLOCK, PARAM_MONTH_FIRST, PARAM_RATE_PER_TRAVEL};
const EParamID MeasureChoices[] = {PARAM_PRESSURE_UNIT,     PARAM_AREA_UNIT,        PARAM_SHORT_DISTANCE_UNIT,
                                   PARAM_DRY_VOLUME_UNIT,   PARAM_DRY_DENSITY_UNIT, PARAM_LIQUID_UNIT,
                                   PARAM_SPRAYER_RATE_BASIS};

QString Template()
{
    const char* const memory = "/dev/shm";
    const bool usesMemory = !qEnvironmentVariableIsSet("TMPDIR") && access(memory, W_OK) == 0;
    return (usesMemory ? QString::fromLatin1(memory) : QDir::tempPath()) + QLatin1String("/fuzz-XXXXXX");
}

} // namespace

TFuzzRoom::TFuzzRoom() : m_Folder(Template()), m_Store(std::make_unique<TMemoryStore>())
{
    Room = this;
    m_Store->SetParameter(PARAM_DECIMAL_POINT, DECIMAL_POINT_COMMA, true);
    StartTerminal();
}

TFuzzRoom::~TFuzzRoom() { Room = nullptr; }

TFuzzRoom& TFuzzRoom::Get() { return *Room; }

QString TFuzzRoom::Path(const char* name) const { return m_Folder.filePath(QLatin1String(name)); }

QString TFuzzRoom::NewFolder()
{
    QDir(Path("input-") + QString::number(m_Folders)).removeRecursively();
    const QString folder = Path("input-") + QString::number(++m_Folders);
    QDir().mkpath(folder);
    return folder;
}

void TFuzzRoom::StartTerminal()
{
    m_Terminal.reset(); // takes back what it has published, before another one publishes the same
    m_Terminal = std::make_unique<TTerminal>(*m_Store);
    QString error;
    if (!m_Terminal->Start(Path("terminal"), &error))
        throw std::runtime_error(error.toStdString());
}

void SetMeasures(TFuzzInput& input)
{
    TMemoryStore& store = TFuzzRoom::Get().Store();
    const unsigned switches = input.Byte();
    unsigned bit = 1;
    for (const EParamID id : MeasureSwitches) {
        store.SetParameter(id, (switches & bit) != 0, false);
        bit <<= 1;
    }
    for (const EParamID id : MeasureChoices) {
        const int choice = input.Byte(); // 255 stands for any number, the others are near the known choices
        store.SetParameter(id, choice == 255 ? input.Int() : choice % 16 - 1, false);
    }
}

QByteArray FuzzFiles::Content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void FuzzFiles::Make(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}
