#pragma once

#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"

#include <QList>
#include <QString>

#include <functional>

class Veritabani;

// The ledgers of the screen DefTuketim2: consumables (Hangi "T", TMY-1) and
// durable goods (Hangi "D", TMY-2), one material class at a time. Entries
// stand on the left of a row, issues on the right.
namespace Defter {

// The cells of a ledger row, Text and SubItems(1..16).
enum Hucre : int {
    SolSira, SolTarih, SolFisNo, IslemTur, SolMiktar, SolFiyat, SolTutar,
    SagSira, SagTarih, SagFisNo, UniteAd, SagMiktar, SagFiyat, SagTutar,
    KimeVerildigi, Ozellik, Tur, HucreSayisi
};

struct Sinif
{
    QString HesapKod;
    QString MalzAdi;
    QString Birimi;
};

// The classes of the side in code order, as the walk of the screen and of
// the headless command goes through them.
QList<Sinif> Siniflar(Veritabani& genel, const RaporSuzgeci& s, const QString& hangi);

struct Sonuc
{
    RaporTablosu tablo;
    // The class had lines in the period: when it had none, the screen says
    // " Kayıt Bulunamadı .. " unless Check1 is set.
    bool kayitVar = false;
};

// The ledger of one class. kdvEkle is Option1 "Ekle": the line's VAT rate is
// folded into the price.
Sonuc Hesapla(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& hangi, bool kdvEkle,
              const Sinif& sinif);

// The walk over every class of Siniflar in code order with one pass over
// FIS: `her` gets each class's ledger, as Hesapla gives it, also for a
// class without lines (kayitVar false). It answers false to stop the walk
// (Esc). Only one class's rows are held at a time.
void Hepsi(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& hangi, bool kdvEkle,
           const std::function<bool(const Sinif&, Sonuc&&)>& her);

const QList<RaporSutunu>& Sutunlar();

// The cells' figures: Format(x, "#####,###.#0"), which "##,###,###.#0"
// also gives, without reading the pattern at every cell.
QString MiktarBicimi(double x);

}
