#pragma once

#include "fis_kayit.h"

#include <QVariant>

// What the print screens of a voucher take from the voucher screen, as it
// stands, unsaved changes included: the head and the grid, and the values
// the screen shows beside them.
struct FisYazimi
{
    FisEkrani fis;
    QString IslemAd;     // the transaction name of line 1
    QString UniteAd2;    // the unit name of the current line ("false" for none)
    QString HarfYazma;   // the amount in words
    QString ACIKLAMA_B;  // a remark; the voucher screen leaves it empty
    QString Text2;       // the running quantity total
    QString Text3;       // the running amount total
    QString KDVTOP;      // the VAT total
};

namespace FisYazimiKurali {

// The kind mark of the printed forms: "Ç" for an issue, "G" for an entry,
// "GÇ" for an entry of which a line among rows 1 to 25 also hands out.
QString CinsIsareti(const QString& cins, const FisEkrani& fis);

// The quantity a printed form shows for a line: the incoming one of an
// entry voucher, the outgoing one of an issue voucher.
double Miktar(const FisEkrani& fis, int satir);

// The register number printed for line `satir` of the grid: the first 21
// characters of the code's digits, the year of the date and the voucher
// number joined, then `son` (the line number, or the slip's own counter).
QString SicilYazisi(const FisEkrani& fis, int satir, int son);

// The lines the VAT adds under a table, each figure right-aligned to width 15
// with single blanks: the VAT, then the grand total, the sum of the amount
// total and the VAT as their boxes hold them.
QString KdvSatiri(QVariant kdv);
QString GenelToplamSatiri(const QString& tutar, const QString& kdv);

}
