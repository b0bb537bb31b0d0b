#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <vector>

class Veritabani;

// What the account table (TMY-15) and the final account table (TMY-17)
// share: the classes of one level of the code plan, their voucher lines
// read in one pass over FIS, the cells of the five column blocks that carry
// a stock from one year to the next, and the rows of their paper.
namespace YilDevri {

// The cells of a row, Text and SubItems(1..13).
enum Hucre : int {
    Sira, Kod, Ad, Birimi, DevredenMiktar, DevredenTutar, GirenMiktar, GirenTutar, ToplamMiktar, ToplamTutar,
    CikanMiktar, CikanTutar, DevirMiktar, DevirTutar, HucreSayisi
};

// The level of the classes: the first (codes of 5 to 7 characters, lines
// matched on their first 6) or the second (8 to 10, matched on 9).
enum class Duzey { Bir, Iki };

struct Sinif
{
    QString HesapKod;
    QString HesapAd;
};

// A line's year against the report's, compared as text.
enum class Yil : std::uint8_t { Onceki, Ayni, Sonraki };

struct Satir
{
    double miktar;
    double cikan;
    double fiyat;
    Yil yil;
    bool dusum;
    std::uint32_t birimi;  // into Okunan::birimler
};

// The lines of every class, each class's in table order.
struct Okunan
{
    QList<Sinif> siniflar;  // in the plan's order
    // The lines of class i are satirlar[bas[i] .. bas[i + 1]).
    std::vector<Satir> satirlar;
    std::vector<std::size_t> bas;
    std::vector<QString> birimler;  // the distinct Birimi texts; NULL reads as ""
    // The place of each Birimi in "order by Birimi": NULL first, then the
    // texts by their bytes.
    std::vector<std::uint32_t> birimSirasi;
    // The Birimi of each class's last line in the order FisNo, Tarih, Satir;
    // "" for a class without lines.
    QStringList sonBirimi;
};

// The classes of the level as HESAP_K holds them, under the main account
// (the first three characters) when one is chosen, and one pass over the
// lines of the filters (dates, store, unit, recipient, description) for
// them all; yil is the report year `Y` against which each line's year is set.
Okunan Oku(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, Duzey duzey, const QString& anaHesap,
           const QString& yil);

const QList<RaporSutunu>& Sutunlar();

// The printed row of a list row, at the Tab places of the count table.
KagitSatiri Basilan(const RaporSatiri& satir);

// The two heading lines at the wide places of the first page; duzey names
// the level ("2. Düzey"), sonBaslik the last column's heading.
QList<BasSatiri> GenisBasliklar(const QString& duzey, const QString& sonBaslik);
// The same at the narrow places of the pages after the first.
QList<BasSatiri> DarBasliklar(const QString& duzey);

}
