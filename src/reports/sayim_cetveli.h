#pragma once

#include "rapor_listeleri.h"
#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"
#include "sabit_kayit.h"

#include <QList>
#include <QString>
#include <QStringList>

class Veritabani;

// The count and inventory table TMY-13 of the screen SayimCetveli: one row
// for each class of the second detail level, what it carried over from the
// years before the report's, what entered and left in that year, and what
// goes on to the next. The lines are read by YilDevri; the cells are those
// of YilDevri::Hucre.
namespace SayimDokum {

// The table from the voucher lines of the filter's period and boxes. The
// report year is the year of s.Tarih1: a line of an earlier year is carried
// over, one of that year entered or issued, a later one counts in nothing.
// anaHesap is the main account chosen on T2 and altHesap the first-level
// code of HesapNo4; empty, all classes. A class without lines in the period
// gives no row. Throws VeriHatasi.
RaporTablosu Hesapla(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& anaHesap,
              const QString& altHesap);

// The first-level codes HesapNo4 offers, with their names.
QList<RaporListeleri::KodAd> AltHesaplar(Veritabani& genel);

// The paper: wide headings on the first page, narrow ones after, the
// signatures of the count committee from the constants.
RaporKagidi Kagit(const SabitSatiri& sabit);


}
