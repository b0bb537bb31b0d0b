#pragma once

#include "fis_yazimi.h"

#include <functional>
#include <optional>

class Veri;

// The totals of a voucher. None of them is stored: they are worked out from
// the quantity, price and rate of the lines whenever they are asked for.
namespace FisToplam {

// The running figures under the grid, as their boxes show them.
struct AraToplamlar
{
    QString Text1;  // the third figure, always zero
    QString Text2;  // quantity
    QString Text3;  // amount, net of VAT
};

// Every row of the grid counts. The quantity lies in column 5 when Hangi is
// "G" and in column 10 otherwise; a comma in a cell is a decimal sign here.
AraToplamlar AraToplam(const FisEkrani& fis);

// The VAT of rows 1 to 25, with the quantity of column 5 whatever the mode:
// an issue voucher comes to 0. A counted line with an empty rate gets "18"
// in the grid. Cells are read with plain Val, so a comma cuts a price.
double KdvToplam(FisEkrani& fis);

// The VAT of grid rows 1 to 25 (a fixed count, not the grid's), the cells
// read through `hucre` by row and column: for each row whose quantity is not
// 0, price times quantity, divided by 100, times the rate. The rate cell is
// read only for such a row. Every cell by plain Val; the total is read back
// from its text between rows, as its box keeps it.
double KdvTopla(const std::function<QString(int satir, int sutun)>& hucre, int miktarSutunu, int fiyatSutunu,
                int oranSutunu);

// Basic's Round: ties go to the even digit, judged on the number's fifteen
// digit decimal form (0.125 gives 0.12, 2.675 gives 2.68).
double Yuvarla(double deger, int basamak);

// The price with the VAT folded in, to two decimals; nothing when the rate
// text is no number, in which case the price stays as it is.
std::optional<double> KdvEkle(const QString& fiyat, const QString& oran);

// The amount in words printed on the voucher, from the amount total as its
// box shows it. Empty when the wording fails; the reason goes to `hata`.
QString HarfYazma(const QString& tutar, QString& hata);

// The unit name as the print screens take it: "false" stands for none.
QString YazimUniteAdi(const QString& uniteAdi);

// What the print screens take, from a voucher of the working year as it is
// saved. A wording failure leaves HarfYazma empty and its reason in
// `harfHatasi`. Throws Hata when there is no such voucher, VeriHatasi when
// the data cannot be read.
FisYazimi KayittanYazim(Veri& veri, const QString& fisNo, const QString& fcins, const QString& yil,
                        QString* harfHatasi = nullptr);

}
