#include "transfer/TShownTransfer.h"

#include "module/SharedObject.h"

void TShownTransfer::Show(const tagShownTransfer& transfer)
{
    m_Transfer = transfer;
    emit changed();
}

void CabQuick::ShowTransfer(const tagShownTransfer& transfer) { SharedObject<TShownTransfer>()->Show(transfer); }
