// The two ledgers over a million voucher lines: every class of each side in
// one walk, against one plain grouped scan of FIS written with the engine's
// own cast. Wall and processor time both, as other work shares the machine.
// Usage: defter_bench [folder [--ozet]]; a folder that already holds the
// sample is reused. --ozet prints a checksum of every cell and computes the
// consumables ledger class by class as well, which must give the same.

#include "defter.h"
#include "olcum.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veritabani.h"
#include "veri.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sqlite3.h>
#include <sys/resource.h>

#include <cstdio>
#include <ctime>

namespace {

bool ozetli = false;

// FNV-1a over every cell, for comparing two ways of computing a ledger.
struct Ozet
{
    quint64 h = 1469598103934665603ull;
    void Ekle(const QString& s)
    {
        for (const QChar c : s) {
            h ^= c.unicode();
            h *= 1099511628211ull;
        }
        h ^= 0xFFFF;
        h *= 1099511628211ull;
    }
    void Ekle(const Defter::Sinif& sinif, const Defter::Sonuc& r)
    {
        Ekle(sinif.HesapKod);
        Ekle(r.kayitVar ? QStringLiteral("1") : QStringLiteral("0"));
        Ekle(r.tablo.baslik);
        for (const RaporSatiri& satir : r.tablo.satirlar) {
            Ekle(QString::number(int(satir.tur)));
            for (const QString& hucre : satir.hucreler)
                Ekle(hucre);
        }
    }
};

QString aralik(const RaporSuzgeci& s)
{
    return s.Tarih.toString(QStringLiteral("dd.MM.yyyy")) + u'-' + s.Tarih1.toString(QStringLiteral("dd.MM.yyyy"));
}

void hamTarama(Veritabani& vt, const char* ad, const char* sql)
{
    Olcum o;
    auto* db = static_cast<sqlite3*>(vt.Tutamac());
    sqlite3_stmt* q = nullptr;
    sqlite3_prepare_v2(db, sql, -1, &q, nullptr);
    int gruplar = 0;
    while (sqlite3_step(q) == SQLITE_ROW)
        ++gruplar;
    sqlite3_finalize(q);
    o.Yaz(ad, QStringLiteral("%1 classes").arg(gruplar));
}

void defter(Veri& veri, const QString& hangi, const RaporSuzgeci& s, bool kdvEkle = false)
{
    Olcum o;
    qint64 siniflar = 0, satirlar = 0;
    Ozet ozet;
    Defter::Hepsi(veri.Ayniyat(), veri.Genel(), s, hangi, kdvEkle,
                  [&](const Defter::Sinif& sinif, Defter::Sonuc&& r) {
                      ++siniflar;
                      satirlar += r.tablo.satirlar.size();
                      if (ozetli)
                          ozet.Ekle(sinif, r);
                      return true;
                  });
    const QByteArray ad = QStringLiteral("ledger %1 %2%3").arg(hangi, aralik(s), kdvEkle ? u" Ekle"_qs : QString()).toUtf8();
    o.Yaz(ad.constData(), QStringLiteral("%1 classes, %2 rows %3")
                              .arg(siniflar)
                              .arg(satirlar)
                              .arg(ozetli ? QString::number(ozet.h, 16) : QString()));
}

// The screen's way: one class at a time.
void sinifSinif(Veri& veri, const QString& hangi, const RaporSuzgeci& s)
{
    Olcum o;
    qint64 satirlar = 0;
    Ozet ozet;
    for (const Defter::Sinif& sinif : Defter::Siniflar(veri.Genel(), s, hangi)) {
        const Defter::Sonuc r = Defter::Hesapla(veri.Ayniyat(), veri.Genel(), s, hangi, false, sinif);
        satirlar += r.tablo.satirlar.size();
        ozet.Ekle(sinif, r);
    }
    const QByteArray ad = QStringLiteral("Hesapla class by class %1 %2").arg(hangi, aralik(s)).toUtf8();
    o.Yaz(ad.constData(), QStringLiteral("%1 rows %2").arg(satirlar).arg(ozet.h, 0, 16));
}

// The class with the most lines, as the screen shows it.
void enBuyukSinif(Veri& veri, const QString& hangi, const RaporSuzgeci& s)
{
    const QList<QStringList> r = veri.Ayniyat().Satirlar(
        QStringLiteral("select HesapKod from FIS where Mid(HesapKod, 1, 3) %1 '150' group by HesapKod "
                       "order by count(*) desc limit 1")
            .arg(hangi == u"D" ? QStringLiteral("<>") : QStringLiteral("=")));
    const Defter::Sinif sinif{r.at(0).at(0), QStringLiteral("-"), QStringLiteral("-")};
    Olcum o;
    const Defter::Sonuc sonuc = Defter::Hesapla(veri.Ayniyat(), veri.Genel(), s, hangi, false, sinif);
    const QByteArray ad = QStringLiteral("Hesapla %1 %2").arg(sinif.HesapKod, aralik(s)).toUtf8();
    o.Yaz(ad.constData(), QStringLiteral("%1 rows").arg(sonuc.tablo.satirlar.size()));
}

}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir gecici;
    const QString klasor = argc > 1 ? QString::fromLocal8Bit(argv[1]) : gecici.path();
    ozetli = argc > 2 && qstrcmp(argv[2], "--ozet") == 0;
    const bool bos = !QFileInfo::exists(QDir(klasor).filePath(QStringLiteral("AYNIYAT.MDB")));
    Veri veri(klasor);
    if (bos)
        OrnekVeriYaz(veri, 1000000);

    hamTarama(veri.Ayniyat(), "grouped scan (cast), FIS_HesapKod order",
              "select HesapKod, sum(cast(Miktar as real)), sum(cast(Cikan as real)) from FIS group by HesapKod");
    hamTarama(veri.Ayniyat(), "grouped scan (cast), table order",
              "select HesapKod, sum(cast(Miktar as real)), sum(cast(Cikan as real)) from FIS not indexed "
              "group by HesapKod");

    const QString yil = QString::number(Saat::Bugun().year());
    const RaporSuzgeci tuketim = RaporSuzgecleri::Acilis(yil, QStringLiteral("T"));
    const RaporSuzgeci tum = RaporSuzgecleri::Acilis(yil, QStringLiteral("D"));
    defter(veri, QStringLiteral("T"), tuketim);
    defter(veri, QStringLiteral("D"), tum);
    defter(veri, QStringLiteral("T"), tum);
    enBuyukSinif(veri, QStringLiteral("T"), tuketim);
    enBuyukSinif(veri, QStringLiteral("T"), tum);
    enBuyukSinif(veri, QStringLiteral("D"), tum);
    if (ozetli) {
        defter(veri, QStringLiteral("T"), tum, true);
        defter(veri, QStringLiteral("D"), tum, true);
        sinifSinif(veri, QStringLiteral("T"), tuketim);
        sinifSinif(veri, QStringLiteral("D"), tum);
    }
    return 0;
}
