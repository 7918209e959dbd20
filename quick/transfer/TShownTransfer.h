#pragma once

#include "module/CabQuick.h"

#include <QObject>

/// What the objects Transfer show in place of their own; see CabQuick::ShowTransfer().
class TShownTransfer : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const tagShownTransfer& Transfer() const { return m_Transfer; }
    void Show(const tagShownTransfer& transfer);

signals:
    void changed();

private:
    tagShownTransfer m_Transfer;
};
