#pragma once

#include "veritabani.h"

// One-value queries. The condition holds the whole tail of the statement with
// its leading blank (" where Fcins = ? and mid(Tarih,7,4) = ?"); its values
// are bound in order.

// "select SUM(field) from table" + condition; null gives 0.
double ToplamAl(Veritabani& vt, const QString& tablo, const QString& alan, const QString& kosul = {},
                const QVariantList& degerler = {});
// "select max(field) ..."; the maximum of a text column is a text maximum
// ("9" beats "10"), read with Val afterwards; null gives 0.
double EnBuyukSayi(Veritabani& vt, const QString& tablo, const QString& alan, const QString& kosul = {},
                   const QVariantList& degerler = {});
// "Select Max(field) ..." as trimmed text; null gives the empty text.
QString EnBuyukMetin(Veritabani& vt, const QString& tablo, const QString& alan, const QString& kosul = {},
                     const QVariantList& degerler = {});
// "select field ..." as trimmed text of the LAST matching row; no row or null
// gives the empty text.
QString AlanGetir(Veritabani& vt, const QString& tablo, const QString& alan, const QString& kosul = {},
                  const QVariantList& degerler = {});
