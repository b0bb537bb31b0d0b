#pragma once

#include "defter.h"
#include "rapor_suzgeci.h"
#include "rapor_tablosu.h"

#include <QList>
#include <QString>

class Veritabani;

// The count minutes TMY-12 of the screen SayimTutanak: for every material
// class, consumables and durable goods alike, the stock the records give,
// with room for what the count committee finds. One row a class.
namespace SayimTutanagi {

// The cells of a row, Text and SubItems(1..11). The committee's columns
// (Kisilere to Aciklama) stay empty: they are filled in by pen.
enum Hucre : int {
    Sira, HesapKod, MalzAdi, Birimi, Kayitlara, Ambardaki, Ortak, OrtakKullanim, Kisilere, Fazla, Noksan, Aciklama,
    HucreSayisi
};

// The classes of the minutes in code order, both sides: one material, the
// code range, and `kod` (F5: the class on screen again), where given.
QList<Defter::Sinif> Siniflar(Veritabani& genel, const RaporSuzgeci& s, const QString& kod = {});

// The minutes: a row for each class with lines in the period, carrying its
// book stock, and the closing row "GenelToplam". No rows at all when no
// class is found (" Malzeme Kaydı Bulunamadı .. ").
RaporTablosu Tablo(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& kod = {});

const QList<RaporSutunu>& Sutunlar();

}
