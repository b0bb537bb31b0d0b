// Measures our SQL functions against SQLite's own on a sample data set, and
// the one-value queries. Usage: veri_bench [lines] [folder]
// A folder that already holds the sample is reused.

#include "ornek_veri.h"
#include "tek_deger.h"
#include "veritabani.h"
#include "veri.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>

namespace {

double enIyi(int kez, const std::function<void()>& is)
{
    double enKisa = 1e300;
    for (int i = 0; i < kez; ++i) {
        QElapsedTimer t;
        t.start();
        is();
        enKisa = std::min(enKisa, t.nsecsElapsed() / 1e6);
    }
    return enKisa;
}

double toplam(Veritabani& vt, const QString& sql, const QVariantList& degerler)
{
    QSqlQuery q = vt.Sorgu(sql, degerler);
    double t = 0;
    while (q.next())
        t += q.value(1).toDouble();
    return t;
}

}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int satir = argc > 1 ? QString::fromLocal8Bit(argv[1]).toInt() : 1000000;
    QTemporaryDir gecici;
    const QString klasor = argc > 2 ? QString::fromLocal8Bit(argv[2]) : gecici.path();

    const bool bos = !QFileInfo::exists(QDir(klasor).filePath(QStringLiteral("AYNIYAT.MDB")));
    Veri veri(klasor);
    if (bos) {
        QElapsedTimer t;
        t.start();
        OrnekVeriYaz(veri, satir);
        std::printf("ornek-veri %d satır: %.1f s\n", satir, t.elapsed() / 1000.0);
    }

    Veritabani& ayniyat = veri.Baglanti(Dosya::Ayniyat);
    QSqlQuery yilSorgu = ayniyat.Sorgu(QStringLiteral("select max(Mid(Tarih,7,4)) from FIS"));
    yilSorgu.next();
    const QString yil = yilSorgu.value(0).toString();
    QSqlQuery say = ayniyat.Sorgu(QStringLiteral("select count(*) from FIS"));
    say.next();
    std::printf("FIS satırı: %lld, yıl %s\n", say.value(0).toLongLong(), qPrintable(yil));

    const QString bizim = QStringLiteral(
        "select Mid(HesapKod,1,3), Sum(val(Miktar) - val(Cikan)) from FIS "
        "where Mid(Tarih,7,4) = ? group by Mid(HesapKod,1,3)");
    const QString yerli = QStringLiteral(
        "select substr(HesapKod,1,3), Sum(cast(Miktar as real) - cast(Cikan as real)) from FIS "
        "where substr(Tarih,7,4) = ? group by substr(HesapKod,1,3)");
    double a = 0, b = 0;
    const double tBizim = enIyi(5, [&] { a = toplam(ayniyat, bizim, {yil}); });
    const double tYerli = enIyi(5, [&] { b = toplam(ayniyat, yerli, {yil}); });
    std::printf("gruplu toplam, val/Mid     : %8.1f ms (toplam %.2f)\n", tBizim, a);
    std::printf("gruplu toplam, cast/substr : %8.1f ms (toplam %.2f)\n", tYerli, b);
    std::printf("oran                       : %8.2f\n", tBizim / tYerli);

    Veritabani& genel = veri.Baglanti(Dosya::Genel);
    const QString kod = AlanGetir(genel, QStringLiteral("URUN_K"), QStringLiteral("HesapKod"),
                                  QStringLiteral(" where HesapKod like ?"), {QStringLiteral("150 01 01%")});
    const int kez = 200;
    auto birim = [&](const char* ad, const std::function<void()>& is) {
        QElapsedTimer t;
        t.start();
        for (int i = 0; i < kez; ++i)
            is();
        std::printf("%-40s: %8.3f ms\n", ad, t.nsecsElapsed() / 1e6 / kez);
    };
    birim("EnBuyukSayi FIS_B.FisNo (tür, yıl)", [&] {
        EnBuyukSayi(ayniyat, QStringLiteral("FIS_B"), QStringLiteral("FisNo"),
                    QStringLiteral(" where  Fcins = ? and mid(Tarih,7,4) = ? "), {QStringLiteral("G"), yil});
    });
    birim("ToplamAl val(Miktar) bir sınıfın", [&] {
        ToplamAl(ayniyat, QStringLiteral("FIS"), QStringLiteral("val(Miktar)"), QStringLiteral(" where HesapKod = ?"),
                 {kod});
    });
    birim("EnBuyukMetin URUN_K.HesapKod (düzey 2)", [&] {
        EnBuyukMetin(genel, QStringLiteral("URUN_K"), QStringLiteral("HesapKod"),
                     QStringLiteral(" where mid(HesapKod,1,9) = ? "), {kod.left(9)});
    });
    birim("AlanGetir URUN_K.MalzAdi", [&] {
        AlanGetir(genel, QStringLiteral("Urun_K"), QStringLiteral("MalzAdi"), QStringLiteral(" where HesapKod = ?"),
                  {kod});
    });
    birim("AlanGetir, bağlantı açıp kapayarak", [&] {
        Veritabani& vt = veri.Baglanti(Dosya::Genel);
        AlanGetir(vt, QStringLiteral("Urun_K"), QStringLiteral("MalzAdi"), QStringLiteral(" where HesapKod = ?"),
                  {kod});
    });
    return 0;
}
