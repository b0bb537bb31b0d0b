// Saving and fetching one 25-line voucher in a data folder of a million
// voucher lines. Usage: fis_bench [folder] [lines]; a folder that already
// holds the sample is reused.

#include "fis_kayit.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veri_klasoru.h"
#include "veri.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

double ortanca(std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() / 2];
}

}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir gecici;
    const QString klasor = argc > 1 ? QString::fromLocal8Bit(argv[1]) : gecici.path();
    const int satir = argc > 2 ? QString::fromLocal8Bit(argv[2]).toInt() : 1000000;
    const bool bos = !QFileInfo::exists(QDir(klasor).filePath(QStringLiteral("AYNIYAT.MDB")));
    Veri veri(klasor);
    if (bos)
        OrnekVeriYaz(veri, satir);

    const QString yil = QString::number(Saat::Bugun().year());
    FisEkrani fis;
    fis.FisNo = QStringLiteral("99999");
    fis.Tarih = Saat::Bugun().toString(QStringLiteral("dd.MM.yyyy"));
    fis.FCins = fis.Hangi = QStringLiteral("G");
    fis.CalisYil = yil;
    fis.CalisAy = QString::number(Saat::Bugun().month());
    fis.TeslimAlan = QStringLiteral("Ölçüm");
    for (int i = 0; i < 25; ++i)
        fis.Satirlar.append({QString(), QStringLiteral("150 01 01 001"), QString(), QStringLiteral("ÖLÇÜM %1").arg(i),
                             QStringLiteral("ADET"), QString::number(i + 1), QStringLiteral("12,50"), fis.Tarih,
                             QString(), QStringLiteral("1"), QString(), QString(), QStringLiteral("1"),
                             QStringLiteral("20"), QString(), QString(), QString()});

    std::vector<double> kayit, getir;
    for (int tur = 0; tur < 30; ++tur) {
        QElapsedTimer t;
        t.start();
        FisKayit::Kaydet(veri.Ayniyat(), fis, [] { return true; });
        kayit.push_back(t.nsecsElapsed() / 1e6);

        t.restart();
        FisEkrani okunan;
        okunan.FisNo = fis.FisNo;
        okunan.FCins = fis.FCins;
        okunan.CalisYil = yil;
        FisKayit::Getir(veri.Ayniyat(), okunan);
        const FisSatirlari satirlar = FisKayit::SatirlariGetir(veri.Ayniyat(), veri.Genel(), fis.FisNo, fis.FCins, yil);
        getir.push_back(t.nsecsElapsed() / 1e6);
        if (satirlar.hucreler.size() != 25) {
            std::fprintf(stderr, "beklenen 25 satır, gelen %lld\n", qint64(satirlar.hucreler.size()));
            return 1;
        }
    }
    std::printf("25 satırlı fişi kaydetme (ortanca, 30 kez): %.2f ms\n", ortanca(kayit));
    std::printf("25 satırlı fişi getirme, baş + satırlar     : %.2f ms\n", ortanca(getir));
    return 0;
}
