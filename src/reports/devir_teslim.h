#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"

#include <QList>
#include <QString>

#include <vector>

class Veritabani;

// The store handover minutes TMY-11 of the screen DevirTeslim: every
// material by its description (Ozellik) with the stock the records give,
// the found quantities left for the pen. One query brings the lines in the
// order of their descriptions and a change of description closes a row.
namespace DevirTeslimTutanagi {

// The cells of a row, Text and SubItems(1..8). The committee's columns stay
// empty.
enum Hucre : int { Metin, Sira, HesapKod, Ozellik, Birimi, SayimMiktari, BulunmasiGereken, Fazla, Noksan, HucreSayisi };

// A voucher line as the walk adds it up.
struct FisSatiri
{
    double miktar = 0;
    double cikan = 0;
    bool dusum = false;  // FCinss "D": marked by a write-off
};

// The lines of one spelling of a description, in the order they were
// written.
struct Malzeme
{
    QString ozellik;
    QString sonHesapKod;  // the code of its last line
    std::vector<FisSatiri> satirlar;
};

// The lines of the period in the walk's order: by description in the
// Turkish order, the spellings of one description that differ only in case
// one after the other, each in the order written. An empty description
// (or none) comes first. birimi is the unit of the first line.
struct Satirlar
{
    QList<Malzeme> malzemeler;
    QString birimi;
};

// Both reports read the stock from the beginning of the records: the start
// date is 01.01.1900 whatever the panel holds.
RaporSuzgeci Suzgec(RaporSuzgeci s);

// The lines under the panel's filters: the dates, the store, one
// description (trimmed) and the code range (either end filled).
Satirlar Oku(Veritabani& ayniyat, const RaporSuzgeci& s);

// The minutes. A material whose stock came to 0 forms no row unless
// biteniGoster ("Biteni Göster"): its figures run on into the next
// material. The unit of every row is that of the first line. The header
// block is the line with the period. No rows when no line is found.
RaporTablosu Tablo(Veritabani& ayniyat, const RaporSuzgeci& s, bool biteniGoster);

const QList<RaporSutunu>& Sutunlar();

}
