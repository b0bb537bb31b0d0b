// Every report the command line can write, computed over a million voucher
// lines into its tables (no output file), against one grouped scan of FIS
// with the engine's own cast. A report with Hangi values runs once for each,
// with the dates its screen opens with.
// Usage: rapor_bench [folder]; a folder that already holds the sample is
// reused.

#include "olcum.h"
#include "ornek_veri.h"
#include "rapor_tanimlari.h"
#include "saat.h"
#include "veri.h"
#include "veritabani.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir gecici;
    const QString klasor = argc > 1 ? QString::fromLocal8Bit(argv[1]) : gecici.path();
    const bool bos = !QFileInfo::exists(QDir(klasor).filePath(QStringLiteral("AYNIYAT.MDB")));
    Veri veri(klasor);
    if (bos)
        OrnekVeriYaz(veri, 1000000);

    {
        Olcum o;
        QSqlQuery q = veri.Ayniyat().Sorgu(QStringLiteral(
            "select HesapKod, sum(cast(Miktar as real)), sum(cast(Cikan as real)) from FIS not indexed group by HesapKod"));
        int gruplar = 0;
        while (q.next())
            ++gruplar;
        o.Yaz("grouped scan (cast), table order", QStringLiteral("%1 classes").arg(gruplar));
    }
    const SabitSatiri sabit = SabitKayit::Getir(veri.Genel()).value_or(SabitSatiri());
    const QString yil = QString::number(Saat::Bugun().year());
    for (const RaporTanimi& r : RaporTanimlari::Hepsi()) {
        const QStringList hangiler =
            r.hangiler.isEmpty() ? QStringList{QString()} : r.hangiler.split(QString(), Qt::SkipEmptyParts);
        for (const QString& hangi : hangiler) {
            Olcum o;
            qint64 tablolar = 0, satirlar = 0;
            r.yuru(veri, r.acilis(yil, hangi), hangi, sabit, [&](RaporTablosu&& t) {
                ++tablolar;
                satirlar += t.satirlar.size();
                return true;
            });
            const QByteArray ad = (r.ad + u' ' + hangi).toUtf8();
            o.Yaz(ad.constData(), QStringLiteral("%1 tables, %2 rows").arg(tablolar).arg(satirlar));
        }
    }
    return 0;
}
