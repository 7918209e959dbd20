#pragma once

#include "look/DerivedColors.h"

#include <QColor>
#include <QObject>

#include <array>

/// The colours in force, by day or by night, as the singleton `Scheme` in QML. They follow every change at once.
///
/// @code
/// Rectangle { color: Scheme.panel; border.color: Scheme.line }
/// Text { color: Scheme.muted; text: area.title }
/// MouseArea { onClicked: Scheme.toggle() }
/// @endcode
///
/// Every colour is valid: where the store holds none, it is the one of a first start.
class TScheme : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isDay READ IsDay WRITE SetDay NOTIFY changed)

    // The scheme's own.
    Q_PROPERTY(QColor text READ Text NOTIFY changed)
    Q_PROPERTY(QColor button READ Button NOTIFY changed)
    Q_PROPERTY(QColor buttonText READ ButtonText NOTIFY changed)
    Q_PROPERTY(QColor background READ Background NOTIFY changed)
    Q_PROPERTY(QColor title READ Title NOTIFY changed)
    Q_PROPERTY(QColor externalBoundary READ ExternalBoundary NOTIFY changed)
    Q_PROPERTY(QColor internalBoundary READ InternalBoundary NOTIFY changed)
    Q_PROPERTY(QColor inactiveBoundaries READ InactiveBoundaries NOTIFY changed)
    Q_PROPERTY(QColor coverage READ Coverage NOTIFY changed)
    Q_PROPERTY(QColor vehicle READ Vehicle NOTIFY changed)
    Q_PROPERTY(QColor track READ Track NOTIFY changed)
    Q_PROPERTY(QColor map READ Map NOTIFY changed)
    Q_PROPERTY(QColor exclusionZone READ ExclusionZone NOTIFY changed)
    Q_PROPERTY(QColor grid READ Grid NOTIFY changed)
    Q_PROPERTY(QColor crossHairs READ CrossHairs NOTIFY changed)

    // Mixed from them; see DerivedColors::tagDerived.
    Q_PROPERTY(QColor panel READ Panel NOTIFY changed)
    Q_PROPERTY(QColor line READ Line NOTIFY changed)
    Q_PROPERTY(QColor muted READ Muted NOTIFY changed)
    Q_PROPERTY(QColor accent READ Accent NOTIFY changed)
    Q_PROPERTY(QColor accentText READ AccentText NOTIFY changed)
    Q_PROPERTY(QColor accentGround READ AccentGround NOTIFY changed)
    Q_PROPERTY(QColor accentGroundText READ AccentGroundText NOTIFY changed)
    Q_PROPERTY(QColor goodGround READ GoodGround NOTIFY changed)
    Q_PROPERTY(QColor goodGroundText READ GoodGroundText NOTIFY changed)
    Q_PROPERTY(QColor good READ Good NOTIFY changed)
    Q_PROPERTY(QColor attention READ Attention NOTIFY changed)
    Q_PROPERTY(QColor scrim READ Scrim NOTIFY changed)
    Q_PROPERTY(QColor focus READ Focus NOTIFY changed)
    Q_PROPERTY(QColor coverageEdge READ CoverageEdge NOTIFY changed)

    // Of the picture behind the pages. What a number shows is the program's choice.
    Q_PROPERTY(int backgroundNumber READ BackgroundNumber NOTIFY changed)

    // Brightness, 0 to 1; 1 by day.
    Q_PROPERTY(double lightbarLevel READ LightbarLevel NOTIFY changed)
    Q_PROPERTY(double backlightLevel READ BacklightLevel NOTIFY changed)
    Q_PROPERTY(double buttonLevel READ ButtonLevel NOTIFY changed)

public:
    explicit TScheme(QObject* parent = nullptr);

    bool IsDay() const { return m_Look.isDay; }
    void SetDay(bool day);

    QColor Text() const { return m_Look.own[TEXT]; }
    QColor Button() const { return m_Look.own[BUTTON]; }
    QColor ButtonText() const { return m_Look.own[BUTTON_TEXT]; }
    QColor Background() const { return m_Look.own[BACKGROUND]; }
    QColor Title() const { return m_Look.own[TITLE]; }
    QColor ExternalBoundary() const { return m_Look.own[EXTERNAL_BOUNDARY]; }
    QColor InternalBoundary() const { return m_Look.own[INTERNAL_BOUNDARY]; }
    QColor InactiveBoundaries() const { return m_Look.own[INACTIVE_BOUNDARIES]; }
    QColor Coverage() const { return m_Look.own[COVERAGE]; }
    QColor Vehicle() const { return m_Look.own[VEHICLE]; }
    QColor Track() const { return m_Look.own[TRACK]; }
    QColor Map() const { return m_Look.own[MAP]; }
    QColor ExclusionZone() const { return m_Look.own[EXCLUSION_ZONE]; }
    QColor Grid() const { return m_Look.own[GRID]; }
    QColor CrossHairs() const { return m_Look.own[CROSS_HAIRS]; }

    QColor Panel() const { return m_Look.derived.panel; }
    QColor Line() const { return m_Look.derived.line; }
    QColor Muted() const { return m_Look.derived.muted; }
    QColor Accent() const { return m_Look.derived.accent; }
    QColor AccentText() const { return m_Look.derived.accentText; }
    QColor AccentGround() const { return m_Look.derived.accentGround; }
    QColor AccentGroundText() const { return m_Look.derived.accentGroundText; }
    QColor GoodGround() const { return m_Look.derived.goodGround; }
    QColor GoodGroundText() const { return m_Look.derived.goodGroundText; }
    QColor Good() const { return m_Look.derived.good; }
    QColor Attention() const { return m_Look.derived.attention; }
    QColor Scrim() const { return m_Look.derived.scrim; }
    QColor Focus() const { return m_Look.derived.focus; }
    QColor CoverageEdge() const { return m_Look.derived.coverageEdge; }

    int BackgroundNumber() const { return m_Look.backgroundNumber; }

    double LightbarLevel() const { return m_Look.lightbar; }
    double BacklightLevel() const { return m_Look.backlight; }
    double ButtonLevel() const { return m_Look.buttons; }

    /// Day becomes night and the other way round. It is the operator's choice: the sun's next switch comes as ever.
    Q_INVOKABLE void toggle();

signals:
    void changed();

private:
    enum EElement : int
    {
        TEXT,
        BUTTON,
        BUTTON_TEXT,
        BACKGROUND,
        TITLE,
        EXTERNAL_BOUNDARY,
        INTERNAL_BOUNDARY,
        INACTIVE_BOUNDARIES,
        COVERAGE,
        VEHICLE,
        TRACK,
        MAP,
        EXCLUSION_ZONE,
        GRID,
        CROSS_HAIRS,
        ELEMENT_COUNT,
    };

    struct tagElement;
    static const std::array<tagElement, ELEMENT_COUNT> Elements;

    struct tagLook
    {
        bool isDay = true;
        std::array<QColor, ELEMENT_COUNT> own;
        DerivedColors::tagDerived derived;
        int backgroundNumber = 0;
        double lightbar = 1;
        double backlight = 1;
        double buttons = 1;
    };

    static tagLook LookNow();
    static bool IsOfScheme(int number);

    tagLook m_Look;
};
