#pragma once

#include "rapor_tablosu.h"

#include <QList>
#include <QString>

class Veritabani;

// The checks run over a year's records before its year-end tables are
// printed: what would make those tables wrong or unprintable, listed with
// the vouchers and classes it concerns. Nothing is changed.
namespace YilSonuDenetimi {

enum Denetim : int {
    EksiStok,       // a class's stock below zero on some date
    FisNumarasi,    // gaps and repeats in the numbers of a kind
    SicilNo,        // durable entry lines without or with a shared register number
    YilDisiSatir,   // a line dated in another year than its voucher's head
    OkunmayanSayi,  // a quantity or price that is no plain number: Val may read it otherwise than meant
    DusumIsareti,   // a write-off without marked lines, a mark without its write-off
    YaziylaTutar,   // a voucher total that the wording cannot spell
    DenetimSayisi
};

// One finding; a text is empty where the check concerns no voucher, line or
// class.
struct Bulgu
{
    Denetim denetim = EksiStok;
    QString fis;  // "G", "C" or "Düşüm"
    QString FisNo;
    QString Tarih;
    QString Satir;
    QString HesapKod;
    QString MalzAdi;
    QString aciklama;
};

// Every check over the year (four digits), the findings grouped by check in
// the order of Denetim. Throws VeriHatasi when the data cannot be read.
QList<Bulgu> Denetle(Veritabani& ayniyat, Veritabani& genel, const QString& yil);

// The line of a check's outcome: "1. Eksiye düşen stok: yok", or the number
// of its findings.
QString Sonucu(Denetim d, qsizetype bulgular);

// The findings as a report: under a heading row per check, which says
// "yok" when the check found nothing, one row per finding.
RaporTablosu Tablo(const QList<Bulgu>& bulgular, const QString& yil);

// The paper: portrait, the title, the headings and the rows.
RaporKagidi Kagit();

}
