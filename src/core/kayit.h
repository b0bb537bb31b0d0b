#pragma once

#include "hata.h"

#include <QString>
#include <QVariant>


// An amount the money wording cannot spell (1 to 9 kuruş, a negative or
// fractional amount, one in exponent form). The run-time stopped with a type
// mismatch there; the message is Turkish and meant for the user.
class BicimHatasi : public Hata
{
public:
    using Hata::Hata;
};

// Number formats of the printed forms. "Zero or empty" is a value equal to
// the number 0 (a text read as a Turkish number) or the empty text.
// The routines taking a reference store their result in it as well.

// "###,###,###.#0"; the empty text for zero or empty.
QString ParaYaz(const QVariant& deger);
// "#######,###,###.##", zero included: 0 gives ",".
QString DuzBicim(const QVariant& deger);
// "####,###,##0.###0" right-aligned with double blanks; zero or empty gives "".
QString Miktar4Yaz(QVariant& deger, int genislik);
// "####,###,##0.#0" right-aligned with double blanks; zero or empty gives "".
QString Tutar2Yaz(QVariant& deger, int genislik);
// As Tutar2Yaz with single blanks, the value's '.' read as a decimal sign.
QString Tutar2YazTek(QVariant& deger, int genislik);
// The text trimmed and right-aligned with double blanks after one blank.
QString SagaDayaCift(QString& metin, int genislik);
// The text trimmed and right-aligned with single blanks after one blank;
// zero or empty gives "".
QString SagaDaya(QString& metin, int genislik);

// Every ',' becomes '.', for Val on a text typed on a screen.
QString VirgulNokta(const QString& metin);
// Every ',' and '.' becomes '.'.
QString AyracNokta(const QString& metin);
// Every '.' becomes ','.
QString NoktaVirgul(const QString& metin);

// The Basic Val: blanks, tabs and line ends are skipped anywhere; a sign,
// digits, one decimal point and an exponent are read up to the first other
// character. "" gives 0, " 1 2 3" 123, "12,5" 12. The SQL function val
// shares the reader (val_oku.h).
double Val(const QString& metin);

// A whole amount in words joined without blanks ("BinİkiYüzOtuz"); 0 gives
// the empty text. Amounts over twelve digits are read from their first
// twelve characters, as the run-time did. Throws BicimHatasi for a negative
// or fractional amount.
QString YaziylaTutar(double tutar);
// The first two digits of a kuruş value in words ("25" gives "YirmiBeş").
// Throws BicimHatasi for a one digit value: 5 kuruş arrives here as 5.
QString KurusYazi(double kurus);
// The wording of a total on the printed forms: "<lira> Lira <kuruş> kuruş",
// or "<lira> Lira " without kuruş (" Lira " under one lira). The kuruş are
// the digits behind the comma of the total's text as SayiMetni writes it
// (fifteen significant digits), one digit taken as tens. Throws BicimHatasi
// where the wording fails, 1 to 9 kuruş among them.
QString TutarYaziyla(double toplam);
