// The movement list over a million voucher lines: the time from building the
// statement to the first screen of rows readable in the grid, unfiltered and
// filtered; then one list read to its end in the background, scrolled to its
// last row and back, with the peak memory of the process meanwhile.
// Usage: liste_bench [folder]; a folder that already holds the sample is
// reused.

#include "liste_izgarasi.h"
#include "malzeme_listesi.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veritabani.h"
#include "veri.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
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

// Shows the movement list of the conditions and reads its first screen;
// the timer runs from the query on.
void ilkEkran(ListeIzgarasi& liste, Veri& veri, const MalzemeListesi::Kosullar& k, QElapsedTimer& t)
{
    liste.Genislikler(MalzemeListesi::Genislikler());
    liste.Basliklar(MalzemeListesi::Basliklar());
    liste.resize(1200, 600);
    liste.show();
    t.start();
    const MalzemeListesi::Komut komut = MalzemeListesi::Liste(k);
    liste.Doldur(veri.Ayniyat(), komut.sql, komut.degerler);
    QCoreApplication::processEvents();
    for (int r = 1; r <= ekranSatiri; ++r)
        liste.TextMatrix(r, 1);
}

// Median milliseconds to the first screen, and the rows the list counts.
std::pair<double, int> olc(Veri& veri, const MalzemeListesi::Kosullar& k)
{
    std::vector<double> sureler;
    int satir = 0;
    for (int tur = 0; tur < 5; ++tur) {
        ListeIzgarasi liste;
        QElapsedTimer t;
        ilkEkran(liste, veri, k, t);
        sureler.push_back(t.nsecsElapsed() / 1e6);
        satir = liste.Rows() - 1;
    }
    return {ortanca(sureler), satir};
}

// What the other way of bringing back a block that left memory would cost:
// running the query again for the list's last block, skipping what lies
// before it.
double offsetIleSonBlok(Veritabani& vt, const MalzemeListesi::Kosullar& k, int toplam)
{
    const MalzemeListesi::Komut komut = MalzemeListesi::Liste(k);
    QElapsedTimer t;
    t.start();
    QSqlQuery q = vt.Sorgu(komut.sql + QStringLiteral(" limit ? offset ?"),
                           komut.degerler + QVariantList{ListeIzgarasi::Blok, toplam - ListeIzgarasi::Blok});
    while (q.next()) {
    }
    return t.nsecsElapsed() / 1e6;
}

// A line of /proc/self/status, in MB.
double bellek(const char* ad)
{
    QFile durum(QStringLiteral("/proc/self/status"));
    if (!durum.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray onek = QByteArray(ad) + ':';
    for (const QByteArray& satir : durum.readAll().split('\n'))
        if (satir.startsWith(onek))
            return satir.mid(onek.size()).trimmed().split(' ').value(0).toDouble() / 1024;
    return 0;
}

// Starts the peak (VmHWM) again from the present resident size.
void tepeyiSifirla()
{
    QFile temizle(QStringLiteral("/proc/self/clear_refs"));
    if (temizle.open(QIODevice::WriteOnly))
        temizle.write("5");
}

// One list as a user would have it: the first screen, the rest read in the
// background, the last row selected and then the first again.
void gezinti(const char* ad, Veri& veri, const MalzemeListesi::Kosullar& k)
{
    tepeyiSifirla();
    const double baslangic = bellek("VmRSS");
    ListeIzgarasi liste;
    QElapsedTimer t;
    ilkEkran(liste, veri, k, t);
    const double ilk = t.nsecsElapsed() / 1e6;
    const int toplam = liste.Rows() - 1;
    const double sayim = t.nsecsElapsed() / 1e6 - ilk;
    // The longest the screen waits for a key or a paint meanwhile.
    double enUzunTur = 0;
    while (liste.Okunan() < toplam) {
        const double once = t.nsecsElapsed() / 1e6;
        QCoreApplication::processEvents();
        enUzunTur = std::max(enUzunTur, t.nsecsElapsed() / 1e6 - once);
    }
    const double arka = t.nsecsElapsed() / 1e6;
    liste.SatirSec(toplam);
    QCoreApplication::processEvents();
    const double sona = t.nsecsElapsed() / 1e6 - arka;
    liste.SatirSec(1);
    QCoreApplication::processEvents();
    const double basa = t.nsecsElapsed() / 1e6 - arka - sona;
    const double tepe = bellek("VmHWM");
    std::printf("%s: %d satır\n"
                "  ilk ekran %8.1f ms, Rows() sayımı %8.1f ms, arkada sona kadar okuma %8.1f ms\n"
                "  okurken en uzun olay turu %6.1f ms, son satıra %6.1f ms, başa dönüş %6.1f ms\n"
                "  bellek: başta %6.1f MB, tepe (VmHWM) %6.1f MB\n"
                "  (karşılaştırma: son blok OFFSET ile yeniden %8.1f ms)\n",
                ad, toplam, ilk, sayim, arka, enUzunTur, sona, basa, baslangic, tepe, offsetIleSonBlok(veri.Ayniyat(), k, toplam));
}

}

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir gecici;
    const QString klasor = argc > 1 ? QString::fromLocal8Bit(argv[1]) : gecici.path();
    const bool bos = !QFileInfo::exists(QDir(klasor).filePath(QStringLiteral("AYNIYAT.MDB")));
    Veri veri(klasor);
    if (bos)
        OrnekVeriYaz(veri, 1000000);

    // The screen's dates at load.
    const auto acilis = [] {
        MalzemeListesi::Kosullar k;
        k.Tarih = QDate(1900, 1, 1);
        k.Tarih1 = QDate(Saat::Bugun().year(), 12, 31);
        return k;
    };
    MalzemeListesi::Kosullar k = acilis();
    const auto [tum, tumSatir] = olc(veri, k);
    std::printf("Süzgeçsiz liste, ilk ekran (ortanca, 5 kez): %8.1f ms, %d satır\n", tum, tumSatir);

    k.hareket = MalzemeListesi::Hareket::Gelen;
    k.HesapKod = QStringLiteral("150 01");
    const auto [suzulu, suzuluSatir] = olc(veri, k);
    std::printf("Gelen + HesapKod 150 01, ilk ekran         : %8.1f ms, %d satır\n", suzulu, suzuluSatir);

    k = acilis();
    k.sira = MalzemeListesi::Sira::Ozellik;
    const auto [sirali, siraliSatir] = olc(veri, k);
    std::printf("Özellik sırasıyla, ilk ekran                : %8.1f ms, %d satır\n", sirali, siraliSatir);

    // The totals under the list when a line is picked: one description,
    // matched the Turkish way over every line.
    const QString ozellik = veri.Ayniyat()
                                .Satirlar(QStringLiteral("select Ozellik from FIS where rowid = ?"), {1})
                                .value(0)
                                .value(0);
    std::vector<double> sureler;
    for (int tur = 0; tur < 5; ++tur) {
        QElapsedTimer t;
        t.start();
        MalzemeListesi::Toplamlar(veri.Ayniyat(), ozellik);
        sureler.push_back(t.nsecsElapsed() / 1e6);
    }
    std::printf("Bir özelliğin toplamları (ortanca, 5 kez)  : %8.1f ms\n", ortanca(sureler));

    gezinti("Süzgeçsiz liste sonuna ve başına", veri, acilis());
    gezinti("Özellik sırasıyla sonuna ve başına", veri, k);
    // No index gives this order: the whole list is sorted before its first row.
    k.sira = MalzemeListesi::Sira::KimeVerildigi;
    gezinti("KimeVerildiği sırasıyla sonuna ve başına", veri, k);
    return 0;
}
