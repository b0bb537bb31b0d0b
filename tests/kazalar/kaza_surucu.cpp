// The crash tests' driver: runs one writing operation that has no command of
// its own, or opens a folder and reports what its files hold.
//
//   kaza_surucu fis DIR     saves the test voucher (KazaFisNo, 25 lines)
//   kaza_surucu dusum DIR   saves the test write-off (KazaDusumNo) over the
//                           first KazaDusumSatiri lines of its material list
//   kaza_surucu kopya DIR   writes the monthly safety copy
//   kaza_surucu ac DIR      opens DIR through Veri, closes it, then prints for
//                           every data file and monthly copy there its
//                           integrity_check, the rows of each table and the
//                           state of the test voucher and write-off; for
//                           every report written there (PDF, CSV, XLSX)
//                           whether it is whole; and every stray ".yeni" or
//                           temporary file
//
// Exit code 0 on success, 1 when the operation or the opening failed.

#include "cikti.h"
#include "dusum_kayit.h"
#include "dusum_listesi.h"
#include "fis_kayit.h"
#include "hata.h"
#include "oturum.h"
#include "saat.h"
#include "veri.h"
#include "veri_klasoru.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

#include <cstdio>
#include <memory>

namespace {

// A number no voucher of the sample reaches.
constexpr int KazaFisNo = 9001;
constexpr int KazaSatirSayisi = 25;
constexpr int KazaDusumNo = 9002;
constexpr int KazaDusumSatiri = 8;

void yaz(const QString& dosya, const QString& anahtar, const QString& deger)
{
    std::printf("%s\t%s\t%s\n", qPrintable(dosya), qPrintable(anahtar), qPrintable(deger));
}

int fisKaydet(const QString& klasor)
{
    Veri veri(klasor);
    const QDate bugun = Saat::Bugun();
    FisEkrani f;
    f.FisNo = QString::number(KazaFisNo);
    f.Tarih = bugun.toString(QStringLiteral("dd.MM.yyyy"));
    f.FCins = f.Hangi = QStringLiteral("G");
    f.CalisYil = QString::number(bugun.year());
    f.CalisAy = QString::number(bugun.month());
    f.KabulSayi = QStringLiteral("77");
    f.KabulTarih = f.Tarih;
    f.TeslimAlan = QStringLiteral("Kaza Deneme");
    f.NeredenGeldigi = QStringLiteral("Deneme Firması");
    f.BelgeTur = QStringLiteral("Fatura");
    f.BelgeSayi = QStringLiteral("KZ0001");
    for (int i = 1; i <= KazaSatirSayisi; ++i)
        f.Satirlar.append({"", "150 01 01 001", "A4 Kağıt", QStringLiteral("SATIR %1").arg(i), "PAKET",
                           QString::number(i), "125,50", f.Tarih, "", "1", "", "", "1", "20", "", "", ""});
    if (FisKayit::Kaydet(veri.Ayniyat(), f, [] { return true; }) != KayitSonucu::Kaydedildi) {
        std::fprintf(stderr, "Fiş kaydedilmedi.\n");
        return 1;
    }
    std::printf("Fiş kaydedildi: %d\n", KazaFisNo);
    return 0;
}

int dusumKaydet(const QString& klasor)
{
    Veri veri(klasor);
    const QDate bugun = Saat::Bugun();
    DusumEkrani d;
    d.FisNo = QString::number(KazaDusumNo);
    d.Tarih = bugun.toString(QStringLiteral("dd.MM.yyyy"));
    d.CalisYil = QString::number(bugun.year());
    d.CalisAy = QString::number(bugun.month());
    d.KomisyonBaskaniAdi = QStringLiteral("Kaza Deneme");
    d.UyeAdi = QStringLiteral("Deneme Üyesi");
    const FisListesi::Komut liste = DusumListesi::MalzemeSorgusu({});
    for (const QStringList& secilen : veri.Ayniyat().Satirlar(liste.sql, liste.degerler).mid(0, KazaDusumSatiri)) {
        QStringList satir = DusumListesi::GridSatiri(DusumListesi::SecilenSatir(veri.Genel(), secilen));
        satir[DusumSutun::Miktar] = QStringLiteral("1");
        d.Satirlar << satir;
    }
    if (d.Satirlar.size() < KazaDusumSatiri) {
        std::fprintf(stderr, "Düşülecek satır yok.\n");
        return 1;
    }
    if (DusumKayit::Kaydet(veri.Ayniyat(), d, [] { return true; }) != DusumSonucu::Kaydedildi) {
        std::fprintf(stderr, "Düşüm kaydedilmedi.\n");
        return 1;
    }
    std::printf("Düşüm kaydedildi: %d\n", KazaDusumNo);
    return 0;
}

// Runs a query on the plain engine; the rows' columns joined by tabs.
QStringList sorgu(sqlite3* db, const char* sql, bool* tamam)
{
    QStringList satirlar;
    sqlite3_stmt* komut = nullptr;
    if (sqlite3_prepare_v2(db, sql, -1, &komut, nullptr) != SQLITE_OK) {
        *tamam = false;
        return {QString::fromUtf8(sqlite3_errmsg(db))};
    }
    int rc;
    while ((rc = sqlite3_step(komut)) == SQLITE_ROW) {
        QStringList sutunlar;
        for (int i = 0; i < sqlite3_column_count(komut); ++i)
            sutunlar << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(komut, i)));
        satirlar << sutunlar.join(u'\t');
    }
    sqlite3_finalize(komut);
    if (rc != SQLITE_DONE) {
        *tamam = false;
        return {QString::fromUtf8(sqlite3_errmsg(db))};
    }
    return satirlar;
}

// One file as the plain engine sees it, none of our functions registered.
bool dosyaRaporu(const QString& yol)
{
    const QString ad = QFileInfo(yol).fileName();
    sqlite3* ham = nullptr;
    const int acildi = sqlite3_open_v2(yol.toUtf8().constData(), &ham, SQLITE_OPEN_READWRITE, nullptr);
    const std::unique_ptr<sqlite3, int (*)(sqlite3*)> db(ham, sqlite3_close);
    if (acildi != SQLITE_OK) {
        yaz(ad, QStringLiteral("integrity_check"), QString::fromUtf8(sqlite3_errmsg(ham)));
        return false;
    }
    bool tamam = true;
    yaz(ad, QStringLiteral("integrity_check"), sorgu(db.get(), "pragma integrity_check", &tamam).join(u' '));
    const QStringList tablolar =
        sorgu(db.get(), "select name from sqlite_schema where type = 'table' order by name", &tamam);
    if (!tamam)
        return false;
    for (const QString& tablo : tablolar) {
        const QByteArray sql = QStringLiteral("select count(*) from \"%1\"").arg(tablo).toUtf8();
        yaz(ad, tablo, sorgu(db.get(), sql.constData(), &tamam).value(0));
    }
    if (tablolar.contains(QStringLiteral("FIS_B")) && tablolar.contains(QStringLiteral("FIS"))) {
        const QByteArray kosul = QByteArray::number(KazaFisNo);
        const QByteArray bas = "select count(*) from FIS_B where FisNo = " + kosul + " and FCins = 'G'";
        const QByteArray satir = "select count(*) from FIS where FisNo = " + kosul + " and FCins = 'G'";
        yaz(ad, QStringLiteral("kaza_fisi_basi"), sorgu(db.get(), bas.constData(), &tamam).value(0));
        yaz(ad, QStringLiteral("kaza_fisi_satiri"), sorgu(db.get(), satir.constData(), &tamam).value(0));
        // Every other voucher, head and lines, down to the last field.
        QCryptographicHash ozet(QCryptographicHash::Sha1);
        for (const char* tablo : {"FIS_B", "FIS"}) {
            const QByteArray sql = QByteArray("select * from ") + tablo + " where not (FisNo = " + kosul
                                   + " and FCins = 'G') order by rowid";
            for (const QString& s : sorgu(db.get(), sql.constData(), &tamam))
                ozet.addData(s.toUtf8() + '\n');
        }
        yaz(ad, QStringLiteral("diger_fisler"), QString::fromLatin1(ozet.result().toHex()));
    }
    if (tablolar.contains(QStringLiteral("DUSUM_B")) && tablolar.contains(QStringLiteral("FIS"))) {
        const QByteArray no = QByteArray::number(KazaDusumNo);
        const QByteArray bas = "select count(*) from DUSUM_B where FisNo = " + no;
        const QByteArray isaret = "select count(*) from FIS where FCinss = 'D' and KabulSayi = '" + no + "'";
        yaz(ad, QStringLiteral("kaza_dusumu_basi"), sorgu(db.get(), bas.constData(), &tamam).value(0));
        yaz(ad, QStringLiteral("kaza_dusumu_isareti"), sorgu(db.get(), isaret.constData(), &tamam).value(0));
    }
    return tamam;
}

// What a report file holds: for a PDF whether it reaches its end mark, for
// a workbook whether the zip's closing record ends it, for a CSV its length
// (an uninterrupted run on the same data and day writes the same).
QString raporDurumu(const QFileInfo& dosya)
{
    const auto tam = [](bool evet) { return evet ? QStringLiteral("tam") : QStringLiteral("eksik"); };
    if (dosya.suffix() == u"pdf")
        return tam(PdfTamam(dosya.filePath()));
    if (dosya.suffix() == u"csv")
        return QString::number(dosya.size());
    QFile f(dosya.filePath());
    const QByteArray icerik = f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    return tam(icerik.size() >= 22 && icerik.sliced(icerik.size() - 22, 4) == QByteArray("PK\x05\x06", 4));
}

// Opening is where the program finishes or undoes an interrupted write. The
// files there are reported even when the folder does not open.
int ac(const QString& klasor)
{
    bool tamam = true;
    try {
        Veri veri(klasor);
    } catch (const Hata& h) {
        std::fprintf(stderr, "%s\n", qPrintable(h.Mesaj()));
        tamam = false;
    }
    QStringList yollar;
    for (Dosya d : VeriDosyalari)
        yollar << VeriKlasoru::DosyaYolu(klasor, DosyaAdi(d));
    for (int ay = 1; ay <= 12; ++ay)
        yollar << VeriKlasoru::DosyaYolu(klasor, VeriKlasoru::AylikKopyaAdi(ay));
    for (const QString& yol : std::as_const(yollar))
        if (QFile::exists(yol))
            tamam = dosyaRaporu(yol) && tamam;
    const QDir dizin(klasor);
    for (const QString& ad : dizin.entryList({QStringLiteral("*.yeni")}, QDir::Files, QDir::Name))
        yaz(QStringLiteral("*"), ad, QStringLiteral("yeni"));
    for (const QFileInfo& f : dizin.entryInfoList({QStringLiteral("*.pdf"), QStringLiteral("*.csv"),
                                                   QStringLiteral("*.xlsx"), QStringLiteral("*.pdf.*"),
                                                   QStringLiteral("*.csv.*"), QStringLiteral("*.xlsx.*")},
                                                  QDir::Files, QDir::Name))
        if (f.suffix() != u"pdf" && f.suffix() != u"csv" && f.suffix() != u"xlsx")
            yaz(QStringLiteral("*"), f.fileName(), QStringLiteral("geçici"));
        else
            yaz(f.fileName(), QStringLiteral("rapor"), raporDurumu(f));
    return tamam ? 0 : 1;
}

}

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arg = QCoreApplication::arguments();
    const QString islem = arg.value(1);
    const QString klasor = QDir(arg.value(2)).absolutePath();
    if (arg.size() != 3) {
        std::fprintf(stderr, "Kullanım: kaza_surucu fis|dusum|kopya|ac KLASÖR\n");
        return 2;
    }
    try {
        if (islem == QLatin1String("fis"))
            return fisKaydet(klasor);
        if (islem == QLatin1String("dusum"))
            return dusumKaydet(klasor);
        if (islem == QLatin1String("kopya")) {
            std::printf("Kopya yazıldı: %s\n", qPrintable(Oturum::AylikKopya(klasor)));
            return 0;
        }
        if (islem == QLatin1String("ac"))
            return ac(klasor);
        std::fprintf(stderr, "Bilinmeyen işlem: %s\n", qPrintable(islem));
        return 2;
    } catch (const Hata& h) {
        std::fprintf(stderr, "%s\n", qPrintable(h.Mesaj()));
    }
    return 1;
}
