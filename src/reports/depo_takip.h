#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"

#include <QList>

class Veritabani;

// Store tracking, the screen DepoTakip: for each material by its
// description what came in, what went out, what is in use and what is left
// in the store. The lines and their order are those of the handover minutes
// (devir_teslim.h).
namespace DepoTakibi {

// The cells of a row, Text and SubItems(1..6).
enum Hucre : int { Metin, HesapKod, Ozellik, Gelen, Cikan, Kullanimda, AmbardaKalan, HucreSayisi };

// The list. Gelen is what entered, Çıkan every issue plus what was written
// off (a write-off line counts twice), Kullanımda what entered less what
// was written off, Ambarda Kalan what entered less every issue. A material
// with nothing left in the store forms no row unless biteniGoster; unlike
// the minutes, a new description starts every sum afresh. No rows when no
// line is found.
RaporTablosu Tablo(Veritabani& ayniyat, const RaporSuzgeci& s, bool biteniGoster);

const QList<RaporSutunu>& Sutunlar();

}
