// The movement list over a million voucher lines: the time from building the
// statement to the first screen of rows readable in the grid, unfiltered and
// filtered. Usage: liste_bench [folder]; a folder that already holds the
// sample is reused.

#include "liste_izgarasi.h"
#include "malzeme_listesi.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veritabani.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int ekranSatiri = 40;

double ortanca(std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() / 2];
}

// Median milliseconds to the first screen, and the rows the list counts.
std::pair<double, int> olc(const QString& klasor, const MalzemeListesi::Kosullar& k)
{
    std::vector<double> sureler;
    int satir = 0;
    for (int tur = 0; tur < 5; ++tur) {
        ListeIzgarasi liste;
        liste.Genislikler(MalzemeListesi::Genislikler());
        liste.resize(1200, 600);
        liste.show();
        QElapsedTimer t;
        t.start();
        const MalzemeListesi::Komut komut = MalzemeListesi::Liste(k);
        {
            Veritabani vt(klasor, Dosya::Ayniyat);
            liste.Doldur(vt, komut.sql, komut.degerler);
        }
        QCoreApplication::processEvents();
        for (int r = 1; r <= ekranSatiri; ++r)
            liste.TextMatrix(r, 1);
        sureler.push_back(t.nsecsElapsed() / 1e6);
        satir = liste.Rows() - 1;
    }
    return {ortanca(sureler), satir};
}

}

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir gecici;
    const QString klasor = argc > 1 ? QString::fromLocal8Bit(argv[1]) : gecici.path();
    if (!QFileInfo::exists(QDir(klasor).filePath(QStringLiteral("AYNIYAT.MDB"))))
        OrnekVeriYaz(klasor, 1000000);

    // The screen's dates at load.
    const auto acilis = [] {
        MalzemeListesi::Kosullar k;
        k.Tarih = QDate(1900, 1, 1);
        k.Tarih1 = QDate(Saat::Bugun().year(), 12, 31);
        return k;
    };
    MalzemeListesi::Kosullar k = acilis();
    const auto [tum, tumSatir] = olc(klasor, k);
    std::printf("Süzgeçsiz liste, ilk ekran (ortanca, 5 kez): %8.1f ms, %d satır\n", tum, tumSatir);

    k.hareket = MalzemeListesi::Hareket::Gelen;
    k.HesapKod = QStringLiteral("150 01");
    const auto [suzulu, suzuluSatir] = olc(klasor, k);
    std::printf("Gelen + HesapKod 150 01, ilk ekran         : %8.1f ms, %d satır\n", suzulu, suzuluSatir);

    k = acilis();
    k.sira = MalzemeListesi::Sira::Ozellik;
    const auto [sirali, siraliSatir] = olc(klasor, k);
    std::printf("Özellik sırasıyla, ilk ekran                : %8.1f ms, %d satır\n", sirali, siraliSatir);

    // The totals under the list when a line is picked: one description,
    // matched the Turkish way over every line.
    const QString ozellik = Veritabani(klasor, Dosya::Ayniyat)
                                .Satirlar(QStringLiteral("select Ozellik from FIS where rowid = ?"), {1})
                                .value(0)
                                .value(0);
    std::vector<double> sureler;
    for (int tur = 0; tur < 5; ++tur) {
        QElapsedTimer t;
        t.start();
        MalzemeListesi::Toplamlar(klasor, ozellik);
        sureler.push_back(t.nsecsElapsed() / 1e6);
    }
    std::printf("Bir özelliğin toplamları (ortanca, 5 kez)  : %8.1f ms\n", ortanca(sureler));
    return 0;
}
