#pragma once

#include <QColor>
#include <QQuickPaintedItem>

/// A row of segments that says how far the vehicle is from the line, and to which side to steer: the middle one is lit
/// on the line, and one more on the side to steer to for every 5 cm. Painted only when a segment changes.
///
///     LightBar { width: 400; height: 24; offLine: Work.offLine; level: Scheme.lightbarLevel
///                centreColor: Scheme.good; sideColor: Scheme.attention; darkColor: Scheme.button }
class TLightBar : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(double offLine READ OffLine WRITE SetOffLine NOTIFY offLineChanged)
    Q_PROPERTY(int lit READ Lit NOTIFY litChanged)
    Q_PROPERTY(double level READ Level WRITE SetLevel NOTIFY lookChanged)
    Q_PROPERTY(QColor centreColor READ CentreColor WRITE SetCentreColor NOTIFY lookChanged)
    Q_PROPERTY(QColor sideColor READ SideColor WRITE SetSideColor NOTIFY lookChanged)
    Q_PROPERTY(QColor darkColor READ DarkColor WRITE SetDarkColor NOTIFY lookChanged)

public:
    explicit TLightBar(QQuickItem* parent = nullptr);

    /// Segments on each side of the middle one, and the distance for which each stands, in metres.
    static constexpr int SideSegments = 7;
    static constexpr double SegmentMetres = 0.05;

    /// Metres to the right of the line; NaN without a line.
    double OffLine() const { return m_OffLine; }
    void SetOffLine(double metres);

    /// The number of lit segments beside the middle one; positive: on the right, because the vehicle is left of the
    /// line. 0 within half a segment of the line and without a line.
    int Lit() const { return m_Lit; }

    /// The brightness of what is lit, 0 to 1. Something of it stays visible at 0.
    double Level() const { return m_Level; }
    void SetLevel(double level);

    QColor CentreColor() const { return m_CentreColor; }
    void SetCentreColor(const QColor& color);
    QColor SideColor() const { return m_SideColor; }
    void SetSideColor(const QColor& color);
    QColor DarkColor() const { return m_DarkColor; }
    void SetDarkColor(const QColor& color);

    void paint(QPainter* painter) override;

signals:
    void offLineChanged();
    void litChanged();
    void lookChanged();

private:
    template <typename Value>
    void Assign(Value& member, const Value& value);
    QColor LitColor(const QColor& color) const;

    double m_OffLine;
    int m_Lit = 0;
    double m_Level = 1;
    QColor m_CentreColor;
    QColor m_SideColor;
    QColor m_DarkColor;
};
