#pragma once

#include <QObject>
#include <QString>

/// A value with its unit as the operator reads it, as `Quantity` in QML. Its texts are those of TUnits and follow every
/// change of units at once.
///
/// @code
/// Quantity { id: area; kind: Quantity.Area; value: Work.areaDone } // hectares
/// Text { text: area.number }                                       // "20.68"
/// Text { text: area.unit }                                         // "ac"
/// @endcode
class TQuantity : public QObject
{
    Q_OBJECT
    Q_PROPERTY(EKind kind READ Kind WRITE SetKind NOTIFY kindChanged)
    Q_PROPERTY(double value READ Value WRITE SetValue NOTIFY valueChanged) ///< in the unit of the kind; NaN at first

    /// In percent, for a kind with a relative error; NaN at first.
    Q_PROPERTY(double error READ RelativeError WRITE SetRelativeError NOTIFY relativeErrorChanged)

    /// Decimals, 0 to 9; -1 asks for the default of the unit. Some kinds choose their decimals themselves.
    Q_PROPERTY(int precision READ Precision WRITE SetPrecision NOTIFY precisionChanged)

    Q_PROPERTY(QString title READ Title NOTIFY kindChanged)         ///< "Area"
    Q_PROPERTY(bool canBeTyped READ CanBeTyped NOTIFY kindChanged)  ///< parse() knows the kind
    Q_PROPERTY(QString text READ Text NOTIFY textChanged)           ///< "8.37 ha"
    Q_PROPERTY(QString number READ Number NOTIFY textChanged)       ///< "8.37"; "----" when the value is not a number
    Q_PROPERTY(QString unit READ Unit NOTIFY textChanged)           ///< "ha"
    Q_PROPERTY(QString errorText READ ErrorText NOTIFY textChanged) ///< "3.20%", for a kind with a relative error
    Q_PROPERTY(QString decimalSign READ DecimalSign CONSTANT)       ///< of the display: "." or ","

public:
    // As QML reads them: Quantity.Area.
    // NOLINTBEGIN(readability-identifier-naming)

    /// What a value measures, and the unit in which it is given.
    enum EKind : int
    {
        Area,                ///< hectares
        Productivity,        ///< hectares per hour
        Speed,               ///< metres per second
        Distance,            ///< metres; for widths and offsets
        SmallDistance,       ///< metres; shown in millimetres or inches
        AdaptiveDistance,    ///< metres; shown in a unit that suits the magnitude; precision 0: no decimals
        Altitude,            ///< metres
        Temperature,         ///< degrees Celsius
        Pressure,            ///< kilopascals
        Rate,                ///< litres per hectare of a liquid product
        RequestedRate,       ///< litres per hectare, with decimals that depend on the value
        RateError,           ///< litres per hectare, and a relative error
        SmallRate,           ///< litres per hectare; shown in millilitres or fluid ounces
        Flow,                ///< litres per minute of a liquid product
        SmallFlow,           ///< litres per minute; shown in millilitres or fluid ounces
        Volume,              ///< litres of a liquid product
        SmallVolume,         ///< litres; shown in millilitres or fluid ounces
        GranularVolume,      ///< litres of a granular product; where it is measured in kilograms: in litres, too
        Weight,              ///< kilograms
        WeightPerArea,       ///< kilograms per hectare
        WeightPerAreaError,  ///< kilograms per hectare, and a relative error
        Discharge,           ///< kilograms per minute
        NitrogenWeight,      ///< kilograms of nitrogen
        NitrogenPerArea,     ///< kilograms of nitrogen per hectare, with decimals that depend on the value
        SeedsPerArea,        ///< thousands of seeds per hectare
        Density,             ///< kilograms per litre of a liquid product
        GranularDensity,     ///< kilograms per litre of a granular product
        VolumePerRevolution, ///< litres per revolution
        WeightPerRevolution, ///< kilograms per revolution
        FlowFactor,          ///< pulses per litre of a liquid product
        WheelFactor,         ///< metres per pulse
        SpeedFactor,         ///< hertz per kilometre per hour
        Latitude,            ///< degrees, north positive
        Longitude,           ///< degrees, east positive
        Duration,            ///< hours
        Percent,             ///< percent; without decimals unless a precision is given
        KindCount,           ///< how many kinds there are; not a kind itself
    };
    Q_ENUM(EKind)

    // NOLINTEND(readability-identifier-naming)

    explicit TQuantity(QObject* parent = nullptr);

    EKind Kind() const { return m_Kind; }
    void SetKind(EKind kind);
    double Value() const { return m_Value; }
    void SetValue(double value);
    double RelativeError() const { return m_Error; }
    void SetRelativeError(double percent);
    int Precision() const { return m_Precision; }
    void SetPrecision(int precision);
    QString Title() const;
    bool CanBeTyped() const;
    QString Text() const { return m_Text; }
    QString Number() const { return m_Number; }
    QString Unit() const { return m_Unit; }
    QString ErrorText() const { return m_ErrorText; }
    QString DecimalSign() const;

    /// The value of what was typed in the unit shown, with the decimal sign of the display. NaN when it is not a number
    /// or when the kind is not one to type.
    Q_INVOKABLE double parse(const QString& typed) const;

    /// The number that is shown for @p stored, without its unit. Where parse() knows the kind, it reads the result.
    Q_INVOKABLE QString format(double stored) const;

signals:
    void kindChanged();
    void valueChanged();
    void relativeErrorChanged();
    void precisionChanged();
    void textChanged();

private:
    void Show();

    EKind m_Kind;
    double m_Value;
    double m_Error;
    int m_Precision;
    QString m_Text;
    QString m_Number;
    QString m_Unit;
    QString m_ErrorText;
};
