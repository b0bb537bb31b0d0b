#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"
#include "sabit_kayit.h"

class Veritabani;

// The account table TMY-15 of the screen HesapCetveli: the five column
// blocks of the count table for each class of the second level and each
// unit of measure, from the lines ordered by their unit.
namespace HesapCetveliRaporu {

// The whole table: the classes under the main account anaHesap (every
// class when empty), the report year that of Tarih1. No rows when the
// level has no class.
RaporTablosu Toplu(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& anaHesap);

// The paper with the signatures of the constants.
RaporKagidi Kagit(const SabitSatiri& sabit);
// The header block, "1.Düzey Kod" in place of "Taşınır Kod".
QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo);

}
