#include "settings/TParameter.h"

#include "module/TParameterHub.h"
#include "settings/ParameterTexts.h"
#include "settings/ParameterTitles.h"
#include "settings/RestartRows.h"

#include "parameters/TParameterCatalogue.h"
#include "stores/TSqliteStore.h"

TParameter::TParameter(QObject* parent) : QObject(parent), m_Parameter(nullptr)
{
    connect(&TParameterHub::Instance(), &TParameterHub::Changed, this, [this](int number) {
        if (number == Number())
            emit valueChanged();
    });
    connect(&TParameterHub::Instance(), &TParameterHub::Written, this, [this](int number, bool isOnDisk) {
        if (number == Number() && !isOnDisk)
            SetError(tr("The setting could not be written to the disk yet."));
    });
}

void TParameter::SetName(const QString& name)
{
    if (name == m_Name)
        return;
    m_Name = name;
    m_Parameter = TParameterCatalogue::Find(name);
    SetError(QString());
    emit nameChanged();
    emit valueChanged();
}

int TParameter::Number() const { return m_Parameter ? int{m_Parameter->id} : -1; }
QString TParameter::Group() const { return m_Parameter ? ParameterTitles::Group(*m_Parameter) : QString(); }
QString TParameter::Title() const { return m_Parameter ? ParameterTitles::Title(*m_Parameter) : QString(); }
QString TParameter::Meaning() const { return m_Parameter ? ParameterTitles::Meaning(*m_Parameter) : QString(); }
QString TParameter::Type() const { return m_Parameter ? TParameterCatalogue::TypeName(m_Parameter->type) : QString(); }
QString TParameter::Unit() const { return m_Parameter ? ParameterTitles::Unit(*m_Parameter) : QString(); }
QString TParameter::Accepts() const { return m_Parameter ? ParameterTexts::Accepts(*m_Parameter) : QString(); }
bool TParameter::NeedsRestart() const { return m_Parameter && FindRestartRow(m_Parameter->id); }

QVariantList TParameter::Choices() const
{
    return m_Parameter ? ParameterTexts::Choices(*m_Parameter) : QVariantList();
}

bool TParameter::HasRange() const
{
    return m_Parameter && m_Parameter->type == PARAMETER_INT && m_Parameter->choices.isEmpty();
}

int TParameter::Least() const { return HasRange() ? m_Parameter->least : 0; }
int TParameter::Greatest() const { return HasRange() ? m_Parameter->greatest : 0; }

QVariant TParameter::DefaultValue() const
{
    return m_Parameter ? TParameterCatalogue::FirstValue(*m_Parameter) : QVariant();
}

QVariant TParameter::Value() const
{
    return m_Parameter ? TParameterHub::Instance().Store().GetParameter(m_Parameter->id) : QVariant();
}

void TParameter::SetValue(const QVariant& value)
{
    if (!m_Parameter)
        return;
    const std::optional<QString> entered = ParameterTexts::Entered(value);
    const QString problem =
        entered ? ParameterTexts::TypeProblem(*m_Parameter, value) : tr("There is no value to set.");
    if (problem.isEmpty())
        set(*entered);
    else
        SetError(problem);
}

bool TParameter::IsDefault() const { return Value() == DefaultValue(); }
QString TParameter::Text() const { return m_Parameter ? TParameterCatalogue::Text(*m_Parameter, Value()) : QString(); }
QString TParameter::ShownText() const { return m_Parameter ? ParameterTexts::Shown(*m_Parameter, Value()) : QString(); }

bool TParameter::set(const QString& typed)
{
    if (!m_Parameter)
        return false;
    QString problem;
    const QVariant value = ParameterTexts::Read(*m_Parameter, typed, &problem);
    SetError(problem);
    if (value.isValid())
        TParameterHub::Instance().Write(m_Parameter->id, value);
    return value.isValid();
}

QString TParameter::check(const QString& typed) const
{
    QString problem;
    if (m_Parameter)
        ParameterTexts::Read(*m_Parameter, typed, &problem);
    return problem;
}

void TParameter::reset()
{
    if (!m_Parameter)
        return;
    SetError(QString());
    TParameterHub::Instance().Write(m_Parameter->id, DefaultValue());
}

void TParameter::SetError(const QString& error)
{
    if (error == m_Error)
        return;
    m_Error = error;
    emit errorChanged();
}
