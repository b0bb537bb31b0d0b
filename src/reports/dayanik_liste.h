#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"

#include <QList>
#include <QString>

#include <memory>

class Veritabani;

// What each unit holds: the durable goods list TMY-8 (screen DayanikListe,
// Hangi "D"), the unit consumption list (Hangi "T") and the second durable
// goods list of the screen Dayanak2, one unit at a time.
namespace DayanikListesi {

// The cells of a list row, Text and SubItems(1..7).
enum Hucre : int { Sira, Tarih, FisNo, MalzAdi, Ozellik, Miktar, KimeVerildigi, SicilNo, HucreSayisi };

// The cells of a row of Dayanak2.
enum Hucre2 : int { Tarih2, FisNo2, HesapKod2, Ozellik2, SicilNo2, Miktar2, KimeVerildigi2, HucreSayisi2 };

struct Birim
{
    QString UniteKod;
    QString UniteAd;
};

// The units of Unite_K in the table's order; with uniteAd1 only those of
// that name.
QList<Birim> Birimler(Veritabani& genel, const QString& uniteAd1 = {});

struct Sonuc
{
    RaporTablosu tablo;
    // The unit had lines on the side: a unit without any is passed over.
    bool kayitVar = false;
};

struct Okunan;

// The lines of every unit asked for, read in one pass over FIS as the list
// of each unit orders them (FisNo, Tarih, Satir): FIS has no index on Unite,
// so a query for each unit would read the whole table each time.
class Liste
{
public:
    // The lines of the side (Hangi "T" or "D") within the dates, the store
    // and the one material (TekMalzeme) of the filter. Throws VeriHatasi.
    Liste(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& hangi,
          const QList<Birim>& birimler);
    ~Liste();

    qsizetype Sayi() const;
    const Birim& Birimi(qsizetype i) const;
    // The list of the i-th unit, with its closing row.
    Sonuc Hesapla(qsizetype i) const;

private:
    std::unique_ptr<Okunan> m_okunan;
    QString m_hangi;
};

// Dayanak2: every durable line of the units, of every date, write-offs
// included, without sums.
class Liste2
{
public:
    Liste2(Veritabani& ayniyat, const QList<Birim>& birimler);
    ~Liste2();

    qsizetype Sayi() const;
    const Birim& Birimi(qsizetype i) const;
    Sonuc Hesapla(qsizetype i) const;

private:
    std::unique_ptr<Okunan> m_okunan;
};

const QList<RaporSutunu>& Sutunlar(const QString& hangi);
const QList<RaporSutunu>& Sutunlar2();

}
