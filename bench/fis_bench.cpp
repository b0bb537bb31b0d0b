// Saving and fetching one 25-line voucher in a data folder of a million
// voucher lines, on the connections held for the run, quiet and while another
// process writes and syncs a large file on the same disk; and the same save
// written straight on SQLite for comparison. Usage: fis_bench [folder]
// [lines]; a folder that already holds the sample is reused.

#include "fis_kayit.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veri.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

double ortanca(std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    return ms[ms.size() / 2];
}

double enKotu(const std::vector<double>& ms)
{
    return *std::max_element(ms.begin(), ms.end());
}

FisEkrani ornekFis()
{
    FisEkrani fis;
    fis.FisNo = QStringLiteral("99999");
    fis.Tarih = Saat::Bugun().toString(QStringLiteral("dd.MM.yyyy"));
    fis.FCins = fis.Hangi = QStringLiteral("G");
    fis.CalisYil = QString::number(Saat::Bugun().year());
    fis.CalisAy = QString::number(Saat::Bugun().month());
    fis.TeslimAlan = QStringLiteral("Ölçüm");
    for (int i = 0; i < 25; ++i)
        fis.Satirlar.append({QString(), QStringLiteral("150 01 01 001"), QString(), QStringLiteral("ÖLÇÜM %1").arg(i),
                             QStringLiteral("ADET"), QString::number(i + 1), QStringLiteral("12.50"), fis.Tarih,
                             QString(), QStringLiteral("1"), QString(), QString(), QStringLiteral("1"),
                             QStringLiteral("20"), QString(), QString(), QString()});
    return fis;
}

// The same writes as a save (head replaced, lines deleted and inserted) in
// one transaction, prepared once, straight on the engine.
class HamKayit
{
public:
    explicit HamKayit(const QString& yol)
    {
        sqlite3_open_v2(yol.toUtf8().constData(), &m_db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_exec(m_db, "PRAGMA synchronous = FULL", nullptr, nullptr, nullptr);
        hazirla("delete from FIS_B where FisNo = 99998 and FCins = 'G'", &m_basSil);
        hazirla("insert into FIS_B (FisNo, Tarih, FCins, TeslimAlan) values (99998, ?, 'G', 'Ölçüm')", &m_basEkle);
        hazirla("delete from FIS where FisNo = 99998 and FCins = 'G'", &m_satirSil);
        hazirla("insert into FIS (Satir, Tarih, FisNo, HesapKod, Ozellik, Birimi, Miktar, FCins, BirimFiyat, "
                "BelgeTarih, IslemTur, SicilNo, KDV, AmbarNo) values (?, ?, 99998, '150 01 01 001', ?, 'ADET', ?, "
                "'G', '12.50', ?, 1, '1500101001202699980', 20, 1)",
                &m_satirEkle);
    }
    ~HamKayit()
    {
        for (sqlite3_stmt* k : {m_basSil, m_basEkle, m_satirSil, m_satirEkle})
            sqlite3_finalize(k);
        sqlite3_close(m_db);
    }
    void Kaydet(const QByteArray& tarih)
    {
        sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        calistir(m_basSil);
        sqlite3_bind_text(m_basEkle, 1, tarih.constData(), int(tarih.size()), SQLITE_STATIC);
        calistir(m_basEkle);
        calistir(m_satirSil);
        for (int i = 1; i <= 25; ++i) {
            const QByteArray oz = QStringLiteral("ÖLÇÜM %1").arg(i).toUtf8();
            const QByteArray miktar = QByteArray::number(i);
            sqlite3_bind_int(m_satirEkle, 1, i);
            sqlite3_bind_text(m_satirEkle, 2, tarih.constData(), int(tarih.size()), SQLITE_STATIC);
            sqlite3_bind_text(m_satirEkle, 3, oz.constData(), int(oz.size()), SQLITE_TRANSIENT);
            sqlite3_bind_text(m_satirEkle, 4, miktar.constData(), int(miktar.size()), SQLITE_TRANSIENT);
            sqlite3_bind_text(m_satirEkle, 5, tarih.constData(), int(tarih.size()), SQLITE_STATIC);
            calistir(m_satirEkle);
        }
        sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
    }

private:
    void hazirla(const char* sql, sqlite3_stmt** komut)
    {
        if (sqlite3_prepare_v2(m_db, sql, -1, komut, nullptr) != SQLITE_OK)
            std::fprintf(stderr, "doğrudan SQLite: %s\n", sqlite3_errmsg(m_db));
    }
    static void calistir(sqlite3_stmt* komut)
    {
        sqlite3_step(komut);
        sqlite3_reset(komut);
    }
    sqlite3* m_db = nullptr;
    sqlite3_stmt *m_basSil = nullptr, *m_basEkle = nullptr, *m_satirSil = nullptr, *m_satirEkle = nullptr;
};

struct Olcum
{
    std::vector<double> kayit, getir, ham;
};

Olcum olc(Veri& veri, int tur)
{
    FisEkrani fis = ornekFis();
    HamKayit ham(veri.Ayniyat().Yol());
    const QByteArray tarih = fis.Tarih.toUtf8();
    Olcum o;
    for (int i = 0; i < tur; ++i) {
        QElapsedTimer t;
        t.start();
        FisKayit::Kaydet(veri.Ayniyat(), fis, [] { return true; });
        o.kayit.push_back(t.nsecsElapsed() / 1e6);

        t.restart();
        FisEkrani okunan;
        okunan.FisNo = fis.FisNo;
        okunan.FCins = fis.FCins;
        okunan.CalisYil = fis.CalisYil;
        FisKayit::Getir(veri.Ayniyat(), okunan);
        const FisSatirlari satirlar =
            FisKayit::SatirlariGetir(veri.Ayniyat(), veri.Genel(), fis.FisNo, fis.FCins, fis.CalisYil);
        o.getir.push_back(t.nsecsElapsed() / 1e6);
        if (satirlar.hucreler.size() != 25)
            std::fprintf(stderr, "beklenen 25 satır, gelen %lld\n", qint64(satirlar.hucreler.size()));

        t.restart();
        ham.Kaydet(tarih);
        o.ham.push_back(t.nsecsElapsed() / 1e6);
    }
    return o;
}

void yaz(const char* baslik, const Olcum& o)
{
    std::printf("%s\n", baslik);
    std::printf("  25 satırlı fişi kaydetme : ortanca %.2f ms, en kötü %.2f ms\n", ortanca(o.kayit), enKotu(o.kayit));
    std::printf("  aynı yazma, doğrudan SQLite: ortanca %.2f ms (oran %.2f)\n", ortanca(o.ham),
                ortanca(o.kayit) / ortanca(o.ham));
    std::printf("  fişi getirme, baş + satırlar: ortanca %.2f ms, en kötü %.2f ms\n", ortanca(o.getir),
                enKotu(o.getir));
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

    yaz("Sessiz disk (30 kez):", olc(veri, 30));

    // Another process writes 256 MB and syncs it, over and over, beside the
    // data files.
    const QString yuk = QDir(klasor).filePath(QStringLiteral("yuk.bin"));
    QProcess yazan;
    yazan.start(QStringLiteral("sh"),
                {QStringLiteral("-c"),
                 QStringLiteral("while :; do dd if=/dev/zero of='%1' bs=1M count=256 conv=fsync 2>/dev/null; done")
                     .arg(yuk)});
    if (!yazan.waitForStarted()) {
        std::printf("Yük süreci başlatılamadı; meşgul disk ölçülmedi.\n");
        return 0;
    }
    QThread::msleep(1500);
    yaz("Başka bir süreç diske yazıp eşitlerken (60 kez):", olc(veri, 60));
    yazan.kill();
    yazan.waitForFinished();
    QFile::remove(yuk);
    return 0;
}
