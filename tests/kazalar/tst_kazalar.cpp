// Every writing operation, killed at each of its file system calls and run
// on a nearly full disk, leaves files that open whole: all of its writes or
// none of them.

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

// The calls a crash can come between; the program's I/O goes through these.
const QStringList Cagrilar = {QStringLiteral("fdatasync"), QStringLiteral("fsync"), QStringLiteral("pwrite64"),
                              QStringLiteral("rename"), QStringLiteral("renameat"), QStringLiteral("renameat2")};

// Trials per call and operation at most; more calls are sampled evenly.
constexpr int EnCokDeneme = 200;
constexpr int SurecSuresi = 120000;  // ms

struct Sonuc
{
    int kod = -1;
    bool olduruldu = false;
    QString cikti;
};

Sonuc calistir(const QStringList& komut)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.start(komut.first(), komut.mid(1));
    if (!p.waitForStarted())
        return {-1, false, QStringLiteral("başlatılamadı: %1 (%2)").arg(komut.first(), p.errorString())};
    if (!p.waitForFinished(SurecSuresi)) {
        p.kill();
        p.waitForFinished();
        return {-1, false, QStringLiteral("zaman aşımı: ") + komut.join(u' ')};
    }
    return {p.exitCode(), p.exitStatus() == QProcess::CrashExit, QString::fromUtf8(p.readAll())};
}

// What `kaza_surucu ac` says of a folder: file -> key -> value.
struct Rapor
{
    bool acildi = false;
    QString hata;
    QMap<QString, QMap<QString, QString>> dosyalar;
};

Rapor raporAl(const QString& klasor)
{
    const Sonuc s = calistir({QStringLiteral(KAZA_SURUCUSU), QStringLiteral("ac"), klasor});
    Rapor r;
    r.acildi = s.kod == 0 && !s.olduruldu;
    for (const QString& satir : s.cikti.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList p = satir.split(u'\t');
        if (p.size() == 3)
            r.dosyalar[p[0]][p[1]] = p[2];
        else
            r.hata += satir + u'\n';
    }
    return r;
}

// The counts of one file without its integrity line.
QMap<QString, QString> sayilar(const Rapor& r, const QString& dosya)
{
    QMap<QString, QString> m = r.dosyalar.value(dosya);
    m.remove(QStringLiteral("integrity_check"));
    return m;
}

void kopyala(const QString& kaynak, const QString& hedef)
{
    QDir().mkpath(hedef);
    for (const QString& ad : QDir(kaynak).entryList(QDir::Files))
        QFile::copy(QDir(kaynak).filePath(ad), QDir(hedef).filePath(ad));
}

qint64 boyut(const QString& klasor)
{
    qint64 toplam = 0;
    for (const QFileInfo& f : QDir(klasor).entryInfoList(QDir::Files))
        toplam += f.size();
    return toplam;
}

// K values for a call made n times: all of them, or an even sample with
// the first and the last.
QList<int> secilenler(int n)
{
    QList<int> k;
    if (n <= EnCokDeneme) {
        for (int i = 1; i <= n; ++i)
            k << i;
        return k;
    }
    for (int i = 0; i < EnCokDeneme; ++i)
        k << 1 + int(qint64(i) * (n - 1) / (EnCokDeneme - 1));
    return k;
}

}

class TstKazalar : public QObject
{
    Q_OBJECT

    // One operation: its command on a folder, and the folder it starts from.
    struct Islem
    {
        QString ad;
        QString baslangic;  // template folder, copied for every trial
        Rapor once;         // what the folder holds before
        Rapor sonra;        // and after an uninterrupted run
        qint64 buyume = 0;  // bytes the files grow by
        QMap<QString, int> cagriSayisi;
    };

    QTemporaryDir m_tmp;
    QString m_strace;
    QString m_kodListesi;
    QMap<QString, Islem> m_islemler;
    int m_sira = 0;
    int m_toplamDeneme = 0;
    int m_toplamHata = 0;

    QString yeniKlasor(const QString& ust)
    {
        return QDir(ust).filePath(QStringLiteral("d%1").arg(++m_sira));
    }

    QStringList komut(const QString& islem, const QString& klasor) const
    {
        if (islem.startsWith(QLatin1String("ornek-veri")))
            return {QStringLiteral(TASINIR_PROGRAMI), QStringLiteral("ornek-veri"), klasor, QStringLiteral("--satir"),
                    QStringLiteral("300")};
        if (islem == QLatin1String("kod-plani-yukle"))
            return {QStringLiteral(TASINIR_PROGRAMI), QStringLiteral("--veri"), klasor,
                    QStringLiteral("kod-plani-yukle"), m_kodListesi};
        if (islem.startsWith(QLatin1String("rapor-")))
            return {QStringLiteral(TASINIR_PROGRAMI), QStringLiteral("--veri"), klasor, QStringLiteral("rapor"),
                    QStringLiteral("defter"), QStringLiteral("--hangi"), QStringLiteral("D"), QStringLiteral("--cikti"),
                    QDir(klasor).filePath(QStringLiteral("defter.") + islem.mid(6))};
        if (islem == QLatin1String("fis") || islem == QLatin1String("dusum"))
            return {QStringLiteral(KAZA_SURUCUSU), islem, klasor};
        return {QStringLiteral(KAZA_SURUCUSU), QStringLiteral("kopya"), klasor};
    }

    // A template folder made by the steps, each of which must succeed.
    QString sablon(const QString& ad, const QString& kaynak, const QStringList& adimlar)
    {
        const QString klasor = QDir(m_tmp.path()).filePath(ad);
        QDir().mkpath(klasor);
        if (!kaynak.isEmpty())
            kopyala(kaynak, klasor);
        for (const QString& adim : adimlar) {
            const Sonuc s = calistir(komut(adim, klasor));
            if (s.kod != 0 || s.olduruldu)
                qFatal("%s: %s", qPrintable(adim), qPrintable(s.cikti));
        }
        return klasor;
    }

    void islemEkle(const QString& ad, const QString& baslangic)
    {
        Islem is;
        is.ad = ad;
        is.baslangic = baslangic;
        // Opening makes the files of an empty folder: the report of the
        // start is taken on a copy of its own.
        const QString ilk = yeniKlasor(m_tmp.path());
        kopyala(baslangic, ilk);
        is.once = raporAl(ilk);
        const QString klasor = yeniKlasor(m_tmp.path());
        kopyala(baslangic, klasor);
        const qint64 onceki = boyut(klasor);
        QStringList izle = komut(ad, klasor);
        if (!m_strace.isEmpty()) {
            const QString iz = klasor + QStringLiteral(".iz");
            izle = QStringList{m_strace, QStringLiteral("-f"), QStringLiteral("-qq"), QStringLiteral("-o"), iz,
                               QStringLiteral("-e"), QStringLiteral("trace=") + Cagrilar.join(u',')}
                   + izle;
            const Sonuc s = calistir(izle);
            QVERIFY2(s.kod == 0, qPrintable(s.cikti));
            QFile f(iz);
            QVERIFY(f.open(QIODevice::ReadOnly));
            static const QRegularExpression cagri(QStringLiteral("^\\d+\\s+(\\w+)\\("));
            for (const QByteArray& satir : f.readAll().split('\n'))
                if (const auto m = cagri.match(QString::fromUtf8(satir)); m.hasMatch())
                    ++is.cagriSayisi[m.captured(1)];
        } else {
            const Sonuc s = calistir(izle);
            QVERIFY2(s.kod == 0, qPrintable(s.cikti));
        }
        is.sonra = raporAl(klasor);
        is.buyume = boyut(klasor) - onceki;
        QVERIFY2(is.once.acildi && is.sonra.acildi, qPrintable(is.once.hata + is.sonra.hata));
        QVERIFY2(is.once.dosyalar != is.sonra.dosyalar, qPrintable(ad));
        qInfo("%s: %s", qPrintable(ad), qPrintable(QDebug::toString(is.cagriSayisi)));
        m_islemler.insert(ad, is);
    }

    // The folder after a trial, opened and reported; empty when it is as
    // before or as after the operation, else why not. *karisik is set when
    // the files went apart: each as before or after on its own, but not all
    // on the same side, or only some of a new folder's files made.
    static QString denetle(const Islem& is, const QString& klasor, Rapor* rapor, bool* karisik)
    {
        QStringList olan, olmayan;
        for (auto it = is.sonra.dosyalar.cbegin(); it != is.sonra.dosyalar.cend(); ++it)
            if (it.key() != QLatin1String("*"))
                (QFile::exists(QDir(klasor).filePath(it.key())) ? olan : olmayan) << it.key();
        const Rapor& r = *rapor = raporAl(klasor);
        *karisik = false;
        QStringList hatalar;
        for (auto it = r.dosyalar.cbegin(); it != r.dosyalar.cend(); ++it)
            if (it.value().contains(QStringLiteral("integrity_check"))
                && it.value().value(QStringLiteral("integrity_check")) != QLatin1String("ok"))
                hatalar << it.key() + QStringLiteral(": ") + it.value().value(QStringLiteral("integrity_check"));
        if (!hatalar.isEmpty())
            return hatalar.join(QStringLiteral("; "));
        if (!r.acildi) {
            *karisik = !olan.isEmpty() && !olmayan.isEmpty();
            return QStringLiteral("klasör açılmadı (olan dosyalar: %1): %2")
                .arg(olan.join(QStringLiteral(", ")), r.hata.trimmed());
        }
        QStringList dosyalar = is.once.dosyalar.keys() + is.sonra.dosyalar.keys();
        dosyalar.removeDuplicates();
        dosyalar.removeAll(QStringLiteral("*"));  // stray ".yeni" files are left for the next run
        QStringList onceki, sonraki;
        for (const QString& d : dosyalar) {
            const QMap<QString, QString> m = sayilar(r, d);
            const bool once = m == sayilar(is.once, d);
            const bool sonra = m == sayilar(is.sonra, d);
            if (!once && !sonra)
                hatalar << QStringLiteral("%1 ne önceki ne sonraki hâlinde: %2")
                               .arg(d, QDebug::toString(m));
            if (once && !sonra)
                onceki << d;
            if (sonra && !once)
                sonraki << d;
        }
        if (!hatalar.isEmpty())
            return hatalar.join(QStringLiteral("; "));
        if (!onceki.isEmpty() && !sonraki.isEmpty()) {
            *karisik = true;
            return QStringLiteral("önceki hâlinde: %1; sonraki hâlinde: %2")
                .arg(onceki.join(QStringLiteral(", ")), sonraki.join(QStringLiteral(", ")));
        }
        return {};
    }

    // Open defects, each a write over several files that is not one piece:
    // the operation's rows fail today and pass (XPASS) once it is fixed.
private slots:
    void initTestCase()
    {
        QElapsedTimer sure;
        sure.start();
        m_strace = QStandardPaths::findExecutable(QStringLiteral("strace"));
        if (!m_strace.isEmpty()) {
            const Sonuc s = calistir({m_strace, QStringLiteral("-f"), QStringLiteral("-o"), QStringLiteral("/dev/null"),
                                      QStringLiteral("true")});
            if (s.kod != 0) {
                qInfo("strace süreci izleyemiyor (ptrace izni yok): %s", qPrintable(s.cikti.trimmed()));
                m_strace.clear();
            }
        }

        m_kodListesi = QDir(m_tmp.path()).filePath(QStringLiteral("kodlar.tsv"));
        QFile liste(m_kodListesi);
        QVERIFY(liste.open(QIODevice::WriteOnly));
        for (int i = 90; i < 96; ++i)
            for (int j = 1; j <= 20; ++j)
                liste.write(QStringLiteral("150 %1 %2\tDeneme Malzemesi %1-%2\n")
                                .arg(i)
                                .arg(j, 2, 10, QLatin1Char('0'))
                                .toUtf8());
        liste.close();

        const QString bos = sablon(QStringLiteral("bos"), {}, {});
        const QString hazir = QDir(m_tmp.path()).filePath(QStringLiteral("hazir"));
        QDir().mkpath(hazir);
        QVERIFY(raporAl(hazir).acildi);
        const QString ornek = sablon(QStringLiteral("ornek"), hazir, {QStringLiteral("ornek-veri")});
        // The old copy holds the empty files; the new one will hold the sample.
        const QString kopyali = sablon(QStringLiteral("kopyali"), hazir, {QStringLiteral("aylik-kopya")});
        const QString kopyaSablonu = sablon(QStringLiteral("kopya"), kopyali, {QStringLiteral("ornek-veri")});

        islemEkle(QStringLiteral("fis"), ornek);
        islemEkle(QStringLiteral("dusum"), ornek);
        for (const char* uzanti : {"pdf", "csv", "xlsx"})
            islemEkle(QStringLiteral("rapor-") + QLatin1String(uzanti), ornek);
        islemEkle(QStringLiteral("ornek-veri"), hazir);
        islemEkle(QStringLiteral("ornek-veri-dosyasiz"), bos);
        islemEkle(QStringLiteral("kod-plani-yukle"), hazir);
        islemEkle(QStringLiteral("aylik-kopya"), kopyaSablonu);
        qInfo("Hazırlık: %lld ms", sure.elapsed());
    }

    void cleanupTestCase() { qInfo("Toplam: %d deneme, %d hata", m_toplamDeneme, m_toplamHata); }

    void kesinti_data()
    {
        QTest::addColumn<QString>("islem");
        QTest::addColumn<QString>("cagri");
        for (const Islem& is : std::as_const(m_islemler))
            for (const QString& c : Cagrilar)
                if (is.cagriSayisi.value(c) > 0) {
                    const QString ad = is.ad + u'/' + c;
                    QTest::newRow(qPrintable(ad)) << is.ad << c;
                }
        if (m_strace.isEmpty())
            QTest::newRow("strace-yok") << QString() << QString();
    }

    void kesinti()
    {
        if (m_strace.isEmpty())
            QSKIP("strace yok ya da ptrace'e izin verilmiyor: süreçler çağrılarında öldürülemez.");
        QFETCH(QString, islem);
        QFETCH(QString, cagri);
        const Islem& is = m_islemler[islem];
        const QString ust = QDir(m_tmp.path()).filePath(QStringLiteral("kesinti"));
        int deneme = 0;
        int olen = 0;
        QStringList karisiklar, digerleri, basarisizK;
        for (int k : secilenler(is.cagriSayisi.value(cagri))) {
            const QString klasor = yeniKlasor(ust);
            kopyala(is.baslangic, klasor);
            const Sonuc s = calistir(QStringList{m_strace, QStringLiteral("-f"), QStringLiteral("-qq"),
                                                 QStringLiteral("-o"), QStringLiteral("/dev/null"),
                                                 QStringLiteral("-e"),
                                                 QStringLiteral("inject=%1:signal=KILL:when=%2").arg(cagri).arg(k)}
                                     + komut(islem, klasor));
            ++deneme;
            olen += s.olduruldu ? 1 : 0;
            bool karisik = false;
            Rapor r;
            QString hata = denetle(is, klasor, &r, &karisik);
            if (hata.isEmpty() && !s.olduruldu && (s.kod != 0 || r.dosyalar != is.sonra.dosyalar))
                hata = QStringLiteral("öldürülmediği hâlde tamamlanmadı (çıkış %1): %2").arg(s.kod).arg(s.cikti);
            if (!hata.isEmpty()) {
                (karisik ? karisiklar : digerleri) << QStringLiteral("%1. %2: %3").arg(k).arg(cagri, hata);
                basarisizK << QString::number(k);
            }
            QDir(klasor).removeRecursively();
        }
        m_toplamDeneme += deneme;
        m_toplamHata += int(karisiklar.size() + digerleri.size());
        qInfo("%s/%s: %d deneme (%d süreç öldürüldü), %d hata (%d dosyalar arası); hatalı K: %s",
              qPrintable(islem), qPrintable(cagri), deneme, olen, int(karisiklar.size() + digerleri.size()),
              int(karisiklar.size()), qPrintable(basarisizK.join(u',')));
        QVERIFY2(digerleri.isEmpty(), qPrintable(digerleri.join(u'\n')));
        QVERIFY2(karisiklar.isEmpty(), qPrintable(karisiklar.join(u'\n')));
    }

    void doluDisk_data()
    {
        QTest::addColumn<QString>("islem");
        for (const Islem& is : std::as_const(m_islemler))
            QTest::newRow(qPrintable(is.ad)) << is.ad;
    }

    // On a disk without room for what the operation adds it must say so,
    // and leave the files as they were.
    void doluDisk()
    {
        QFETCH(QString, islem);
        const Islem& is = m_islemler[islem];
        const QString disk = QDir(m_tmp.path()).filePath(QStringLiteral("disk"));
        QVERIFY(QDir().mkpath(disk));
        const qint64 kb = (boyut(is.baslangic) + 2 * is.buyume) / 1024 + 1024;
        const Sonuc baglama = calistir({QStringLiteral("mount"), QStringLiteral("-t"), QStringLiteral("tmpfs"),
                                        QStringLiteral("-o"), QStringLiteral("size=%1k").arg(kb),
                                        QStringLiteral("tmpfs"), disk});
        if (baglama.kod != 0)
            QSKIP(qPrintable(QStringLiteral("Küçük bir tmpfs bağlanamadı (root ve mount izni gerekir): ")
                             + baglama.cikti.trimmed()));
        const struct Ayir
        {
            QString disk;
            ~Ayir() { calistir({QStringLiteral("umount"), disk}); }
        } ayir{disk};

        // One run with `bosluk` bytes left free; answers whether it said it
        // succeeded. Success must leave the whole result, failure the
        // files as they were.
        const QString dolgu = QDir(disk).filePath(QStringLiteral("dolgu"));
        int deneme = 0;
        QStringList karisiklar, digerleri;
        const auto dene = [&](qint64 bosluk) {
            const QString klasor = yeniKlasor(disk);
            kopyala(is.baslangic, klasor);
            struct statvfs durum;
            const qint64 kalan =
                statvfs(qPrintable(disk), &durum) == 0 ? qint64(durum.f_bavail) * qint64(durum.f_frsize) : 0;
            const int fd = ::open(qPrintable(dolgu), O_CREAT | O_WRONLY, 0600);
            const bool doldu = fd >= 0 && posix_fallocate(fd, 0, qMax(kalan - bosluk, qint64(1))) == 0;
            if (fd >= 0)
                ::close(fd);
            const Sonuc s = doldu ? calistir(komut(islem, klasor)) : Sonuc{};
            QFile::remove(dolgu);
            ++deneme;
            const bool basarili = s.kod == 0 && !s.olduruldu;
            Rapor r;
            bool karisik = false;
            QString hata = doldu ? denetle(is, klasor, &r, &karisik) : QStringLiteral("disk doldurulamadı");
            if (hata.isEmpty() && r.dosyalar != (basarili ? is.sonra : is.once).dosyalar)
                hata = basarili ? QStringLiteral("başarı bildirdi ama sonuç eksik: %1").arg(s.cikti.trimmed())
                                : QStringLiteral("hata bildirdi ama dosyalar değişti: %1").arg(s.cikti.trimmed());
            if (!hata.isEmpty())
                (karisik ? karisiklar : digerleri) << QStringLiteral("%1 bayt boşluk: %2").arg(bosluk).arg(hata);
            QDir(klasor).removeRecursively();
            return basarili;
        };

        // The least free room the operation succeeds in, found by halving
        // (every run a trial); then runs with less, down to none, must fail.
        qint64 yetmez = 0;
        qint64 yeter = kb * 1024 - boyut(is.baslangic) - 512 * 1024;
        QVERIFY2(!dene(yetmez), "Hiç boş yer yokken işlem başarı bildirdi.");
        QVERIFY2(dene(yeter), qPrintable((digerleri + karisiklar).join(u'\n')));
        while (yeter - yetmez > 4096) {
            const qint64 orta = (yetmez + yeter) / 2;
            (dene(orta) ? yeter : yetmez) = orta;
        }
        QStringList basarilar;
        for (int pay = 1; pay < 4; ++pay)
            if (const qint64 bosluk = yeter * pay / 4; dene(bosluk))
                basarilar << QString::number(bosluk);
        m_toplamDeneme += deneme;
        m_toplamHata += int(karisiklar.size() + digerleri.size() + basarilar.size());
        qInfo("%s, dolu disk: en az %lld bayt boşlukla başarılı; %d deneme, %d hata (%d dosyalar arası)",
              qPrintable(islem), yeter, deneme, int(karisiklar.size() + digerleri.size() + basarilar.size()),
              int(karisiklar.size()));
        QVERIFY2(basarilar.isEmpty(),
                 qPrintable(QStringLiteral("Daha az boşlukla başarı bildirdi: ") + basarilar.join(u',')));
        QVERIFY2(digerleri.isEmpty(), qPrintable(digerleri.join(u'\n')));
        QVERIFY2(karisiklar.isEmpty(), qPrintable(karisiklar.join(u'\n')));
    }
};

QTEST_GUILESS_MAIN(TstKazalar)
#include "tst_kazalar.moc"
