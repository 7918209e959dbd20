#include "TOpenDisplay.h"

#include "TTemporaryFolder.h"
#include "VisibleItems.h"

#include "display/fieldwork/DemoField.h"
#include "display/fieldwork/TWork.h"
#include "display/session/TDisplaySession.h"
#include "display/shot/OpenOverlay.h"
#include "display/shot/PageTable.h"
#include "module/CabQuick.h"
#include "nmea/TFieldSimulator.h"
#include "parameters/TParameterCatalogue.h"
#include "receiver/SimulatedField.h"
#include "receiver/TReceiver.h"
#include "stores/TSqliteStore.h"
#include "terminal/DataFolder.h"

#include <QAbstractItemModel>
#include <QGuiApplication>
#include <QQuickItemGrabResult>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>

namespace {

const int LoadPatience = 60000; ///< milliseconds

QStringList& Complaints()
{
    static QStringList complaints;
    return complaints;
}

QtMessageHandler BeforeComplaints = nullptr;

void Complain(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // Of the platform without a screen, and of Qt's clock of animations, which at times stops twice after a pause, as
    // the keyboard on the screen has some; not of the display.
    const bool isOfPlatform = text.startsWith(QLatin1String("This plugin does not support")) ||
                              text == QLatin1String("QUnifiedTimer::stopAnimationDriver: driver is not running");
    if (type != QtDebugMsg && type != QtInfoMsg && !isOfPlatform)
        Complaints().append(text);
    BeforeComplaints(type, context, text);
}

bool StoreFirst(const QString& dataFolder, const QMap<QString, QVariant>& values, QString* problem)
{
    if (values.isEmpty())
        return true;
    const auto store = TSqliteStore::Open(DataFolder::StoreFile(dataFolder), problem);
    for (auto value = values.begin(); store && value != values.end(); ++value) {
        if (!store->SetParameter(TParameterCatalogue::Find(value.key())->id, value.value(), true))
            *problem = value.key() + QLatin1String(" is not stored");
    }
    return problem->isEmpty();
}

/// The rows of lists belong to their list as items only, not as objects.
void AddObjects(const QQuickItem& item, const char* type, QList<QObject*>& objects)
{
    for (QObject* object : item.findChildren<QObject*>()) {
        if (object->inherits(type) && !objects.contains(object))
            objects.append(object);
    }
    for (const QQuickItem* child : item.childItems())
        AddObjects(*child, type, objects);
}

} // namespace

struct TOpenDisplay::tagState
{
    tagState(const QSize& itsSize, const QString& itsLanguage) : size(itsSize), language(itsLanguage) {}

    TTemporaryFolder folder;
    QSize size;
    QString language;
    QString problem;
    std::unique_ptr<TDisplaySession> session;
    const tagOverlay* open = nullptr; ///< the one that Show() has opened

    QQuickWindow* Window() const { return session ? session->Window() : nullptr; }
};

TOpenDisplay::TOpenDisplay(const QSize& size, const QString& language, const QMap<QString, QVariant>& first)
    : m_State(std::make_unique<tagState>(size, language))
{
    Complaints().clear();
    BeforeComplaints = qInstallMessageHandler(Complain);
    if (!StoreFirst(m_State->folder.Path(), first, &m_State->problem))
        return;
    Start();
}

TOpenDisplay::~TOpenDisplay()
{
    Stop();
    qInstallMessageHandler(BeforeComplaints);
}

bool TOpenDisplay::Start()
{
    tagState& state = *m_State;
    static const bool isSoftware = [] {
        QQuickWindow::setSceneGraphBackend(QLatin1String("software"));
        return true;
    }();
    Q_UNUSED(isSoftware)
    tagDisplayOptions options;
    options.dataFolder = state.folder.Path();
    options.size = state.size;
    options.language = state.language;
    state.session = std::make_unique<TDisplaySession>();
    if (!state.session->Start(options, &state.problem) || !state.session->OpenWindow(options, &state.problem))
        return false;
    QQuickWindow& window = *state.Window();
    window.show();
    return QTest::qWaitForWindowExposed(&window);
}

void TOpenDisplay::Stop()
{
    m_State->open = nullptr;
    m_State->session.reset();
}

void TOpenDisplay::Restart()
{
    Stop();
    Start();
}

bool TOpenDisplay::IsOpen() const { return m_State->Window(); }
QString TOpenDisplay::Problem() const { return m_State->problem; }
QString TOpenDisplay::DataFolder() const { return m_State->folder.Path(); }
QQuickWindow& TOpenDisplay::Window() const { return *m_State->Window(); }
QQuickItem& TOpenDisplay::Content() const { return *m_State->Window()->contentItem(); }
QStringList TOpenDisplay::Warnings() const { return Complaints(); }

QStringList TOpenDisplay::Pages() { return PageNames(); }

void TOpenDisplay::ShowPage(const QString& page)
{
    const tagPage* const row = FindPage(page);
    QVERIFY(row);
    OpenPage(Window(), *row);
    Settle();
}

QStringList TOpenDisplay::Views() { return PageNames() + OverlayNames(); }

void TOpenDisplay::Show(const QString& view)
{
    TSqliteStore& store = m_State->session->Store();
    if (m_State->open)
        CloseOverlay(Window(), store, *m_State->open);
    m_State->open = FindOverlay(view);
    QString error;
    if (m_State->open)
        QVERIFY2(OpenOverlay(Window(), store, *m_State->open, &error), qPrintable(error));
    else
        ShowPage(view);
    // Lists are read by threads.
    QVERIFY(QTest::qWaitFor([] { return !CabQuick::IsBusy(); }, LoadPatience));
    Settle();
}

void TOpenDisplay::MakeExample()
{
    QString error;
    QVERIFY2(MakeDemoField(m_State->session->Engine(), &error), qPrintable(error));
    const TWork& work = *TWork::Of(m_State->session->Engine());
    // Its field has a boundary. The selections are followed a moment later.
    QVERIFY(QTest::qWaitFor([&work] { return !work.IsLoading() && !std::isnan(work.AreaLeft()); }, LoadPatience));
}

void TOpenDisplay::Drive(int positions)
{
    TWork& work = *TWork::Of(Engine());
    work.SetWorking(true);
    TFieldSimulator simulator(CabQuick::SimulatedPlan());
    for (int position = 1; position < positions; ++position)
        CabQuick::Receiver().Show(simulator.NextEpoch());
    // The figures follow at most twice a second.
    const int patience = 10000;
    QSignalSpy told(&work, &TWork::figuresChanged);
    QVERIFY(told.wait(patience));
    CabQuick::Receiver().Show(simulator.NextEpoch());
    QVERIFY(told.wait(patience));
    Settle();
}

void TOpenDisplay::Settle() const
{
    // A frame makes the rows of lists, which then find their places for the next one.
    const int frames = 2;
    const int patience = 2000;
    for (int frame = 0; frame < frames; ++frame) {
        QSignalSpy drawn(m_State->Window(), &QQuickWindow::frameSwapped);
        m_State->Window()->update();
        drawn.wait(patience);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

QList<QObject*> TOpenDisplay::Quantities() const
{
    QList<QObject*> quantities;
    AddObjects(Content(), "TQuantity", quantities);
    return quantities;
}

QStringList TOpenDisplay::ExampleTexts() const
{
    QList<QObject*> models;
    AddObjects(Content(), "TQuantityModel", models);
    QStringList texts;
    for (const QObject* object : models) {
        const auto& model = *qobject_cast<const QAbstractItemModel*>(object);
        const int role = model.roleNames().key("text");
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.data(model.index(row, 0), role).toString());
    }
    return texts;
}

QQmlEngine& TOpenDisplay::Engine() const { return m_State->session->Engine(); }

void TOpenDisplay::Resize(const QSize& size)
{
    m_State->size = size;
    m_State->Window()->resize(size);
    Settle();
}

QVariant TOpenDisplay::Parameter(const QString& name) const
{
    return m_State->session->Store().GetParameter(TParameterCatalogue::Find(name)->id);
}

void TOpenDisplay::SetParameter(const QString& name, const QVariant& value)
{
    m_State->session->Store().SetParameter(TParameterCatalogue::Find(name)->id, value, true);
    Settle();
}

QImage TOpenDisplay::Picture()
{
    Settle();
    const QSharedPointer<QQuickItemGrabResult> grab = Content().grabToImage();
    if (!grab)
        return QImage();
    QSignalSpy ready(grab.data(), &QQuickItemGrabResult::ready);
    const int patience = 10000;
    return ready.wait(patience) || !grab->image().isNull() ? grab->image() : QImage();
}

bool TOpenDisplay::Tap(const QString& name)
{
    const QQuickItem* const target = VisibleItems::Target(Content(), name);
    if (!target)
        return false;
    Tap(VisibleItems::SeenPart(*target).center());
    return true;
}

void TOpenDisplay::Tap(const QPointF& place)
{
    QTest::mouseClick(m_State->Window(), Qt::LeftButton, Qt::NoModifier, place.toPoint());
    Settle();
}

void TOpenDisplay::Type(const QString& text)
{
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, m_State->Window(), Qt::Key_unknown, QString(letter), Qt::NoModifier);
    Settle();
}

void TOpenDisplay::Press(Qt::Key key)
{
    QTest::keyClick(m_State->Window(), key);
    Settle();
}
