#pragma once

#include "rapor_tablosu.h"
#include "yil_sonu_denetimi.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <map>

class Veri;

// The year-end set: the checks of the year, then its statutory tables as
// PDF files and one workbook with a sheet for each, and a summary that sets
// side by side the figures the tables give for each account.
namespace YilSonu {

// The tables the summary compares, in the order of its columns. The
// ledgers of both sides are one column: each class is on one side only.
enum Kaynak : int { SayimCetveli, HesapCetveli, KesinHesap, SayimTutanagi, Defter, KaynakSayisi };

// The year's figures of an account.
enum Rakam : int {
    DevredenMiktar, DevredenTutar, GirenMiktar, GirenTutar, CikanMiktar, CikanTutar, DevirMiktar, DevirTutar,
    RakamSayisi
};

// The figures of the main accounts (150, 253, ...) and of their
// second-level codes ("150 01 01") as the tables print them: each table's
// cells read back and summed over the rows of the account. A table gives
// the figures it has columns for, at the levels its rows reach (the final
// account table only the main accounts); where it has no row for an
// account it gives 0.
class Ozet
{
public:
    void Ekle(Kaynak kaynak, const RaporTablosu& tablo);

    // The summary page: for each main account every figure, for each
    // second-level code the figures on which the tables differ; a figure on
    // which they differ says "FARK", and the cells apart from the value most
    // tables give are marked " *". Then the outcome of each check.
    RaporTablosu Tablo(const QString& yil, const QList<YilSonuDenetimi::Bulgu>& bulgular) const;

    // The number of figures, over all accounts, on which the tables differ.
    int Farklar() const;

private:
    // In hundredths, so that sums of printed amounts are exact.
    using Rakamlar = std::array<std::array<qint64, RakamSayisi>, KaynakSayisi>;
    std::map<QString, Rakamlar> m_hesaplar;
};

// The summary's paper: landscape, the columns at fixed places.
RaporKagidi Kagit();

struct Sonuc
{
    QStringList dosyalar;  // in the order written
    RaporTablosu ozet;     // the summary, when written
    qsizetype bulgular = 0;
    int farklar = 0;
    bool durdu = false;  // stopped by the user: the files written stand, the book and the summary are not written
};

// Told of each table being written: the step's name, its number from 1 and
// the number of steps. Answers false to stop.
using Ilerleme = std::function<bool(const QString& adim, int no, int adimlar)>;

// Writes the set of the year (four digits) into the folder, which is made
// when missing: the findings of the year's checks (YilSonuDenetimi::Denetle),
// TMY-13, TMY-15, TMY-17, TMY-12, TMY-8 and both
// ledgers of the year, each table as a PDF and as a sheet of the book, and
// the summary last, the sheet the book opens on. A table without lines
// writes no PDF. A check that finds something does not stop the set.
// Throws Hata when a file cannot be written or the data cannot be read.
Sonuc Yaz(Veri& veri, const QString& yil, const QString& klasor, const QList<YilSonuDenetimi::Bulgu>& bulgular,
          const Ilerleme& ilerleme);

}
