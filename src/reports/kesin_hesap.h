#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"
#include "sabit_kayit.h"

class Veritabani;

// The final account summary TMY-17 of the screen KesinHesap: the five
// column blocks of the count table for each class of the first level, one
// row a class, for the working year.
namespace KesinHesapRaporu {

// The whole table: the classes under the main account anaHesap (every
// class when empty) that have lines; a line's year is set against the
// working year calisYil, the dates only bound the lines read. No rows when
// the level has no class.
RaporTablosu Toplu(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& anaHesap,
                   const QString& calisYil);

RaporKagidi Kagit();
// The one header line: the institution and the class.
QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo);

}
