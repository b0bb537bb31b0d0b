// The two ledgers over a million voucher lines: every class of each side
// computed into its rows, as the walk of the screen goes, against one plain
// grouped scan of FIS that reads the same quantities.
// Usage: defter_bench [folder]; a folder that already holds the sample is
// reused.

#include "defter.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veritabani.h"
#include "veri.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <cstdio>

namespace {

void defter(Veri& veri, const QString& hangi, const RaporSuzgeci& s)
{
    QElapsedTimer t;
    t.start();
    qint64 satir = 0;
    const QList<Defter::Sinif> siniflar = Defter::Siniflar(veri.Genel(), s, hangi);
    for (const Defter::Sinif& sinif : siniflar)
        satir += Defter::Hesapla(veri.Ayniyat(), veri.Genel(), s, hangi, false, sinif).tablo.satirlar.size();
    std::printf("ledger %s  %s-%s: %lld classes, %lld rows, %lld ms\n", qPrintable(hangi),
                qPrintable(s.Tarih.toString(QStringLiteral("dd.MM.yyyy"))),
                qPrintable(s.Tarih1.toString(QStringLiteral("dd.MM.yyyy"))), qlonglong(siniflar.size()),
                qlonglong(satir), qlonglong(t.elapsed()));
}

}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir gecici;
    const QString klasor = argc > 1 ? QString::fromLocal8Bit(argv[1]) : gecici.path();
    const bool bos = !QFileInfo::exists(QDir(klasor).filePath(QStringLiteral("AYNIYAT.MDB")));
    Veri veri(klasor);
    if (bos)
        OrnekVeriYaz(veri, 1000000);

    QElapsedTimer t;
    t.start();
    QSqlQuery q = veri.Ayniyat().Sorgu(
        QStringLiteral("select HesapKod, sum(val(Miktar)), sum(val(Cikan)) from FIS group by HesapKod"));
    int gruplar = 0;
    while (q.next())
        ++gruplar;
    std::printf("grouped scan of FIS: %d classes, %lld ms\n", gruplar, qlonglong(t.elapsed()));

    const QString yil = QString::number(Saat::Bugun().year());
    defter(veri, QStringLiteral("T"), RaporSuzgecleri::Acilis(yil, QStringLiteral("T")));
    defter(veri, QStringLiteral("D"), RaporSuzgecleri::Acilis(yil, QStringLiteral("D")));
    RaporSuzgeci tum = RaporSuzgecleri::Acilis(yil, QStringLiteral("D"));
    defter(veri, QStringLiteral("T"), tum);
    return 0;
}
