#pragma once

#include "fis_yazimi.h"
#include "sayfa_ekrani.h"

class QLineEdit;

// The voucher as the filled-in statutory form (caption "Fiş Yazdırma
// Önİzleme"), from the voucher screen's controls and the constants row.
class FisYaz : public SayfaEkrani
{
    Q_OBJECT

public:
    FisYaz(const CalismaBaglami& baglam, const FisYazimi& yazim, QWidget* ebeveyn = nullptr);

    QLineEdit* KDVTut;
    QPushButton* CmdKDV;

private:
    // The VAT as typed and the grand total onto the page, then to the printer.
    void KdvYazdir();

    const FisYazimi m_yazim;
};
