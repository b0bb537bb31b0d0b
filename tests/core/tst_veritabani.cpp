#include "dosyalar_arasi.h"
#include "gecici_veri.h"
#include "hata_metni.h"
#include "saat.h"
#include "sema.h"
#include "sql_islevleri.h"
#include "tek_deger.h"
#include "veri_klasoru.h"
#include "veritabani.h"
#include "veri.h"

#include <QDir>
#include <QFile>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class TstVeritabani : public QObject, protected GeciciVeri
{
    Q_OBJECT

    static QStringList sutunlar(Veritabani& vt, const QString& tablo)
    {
        const QSqlRecord kayit = vt.Sorgu(u"select * from %1 where 0"_s.arg(tablo)).record();
        QStringList adlar;
        for (int i = 0; i < kayit.count(); ++i)
            adlar << kayit.fieldName(i);
        return adlar;
    }
    static QVariant tek(Veritabani& vt, const QString& sql, const QVariantList& degerler = {})
    {
        QSqlQuery q = vt.Sorgu(sql, degerler);
        return q.next() ? q.value(0) : QVariant();
    }
    static QByteArray oku(const QString& yol)
    {
        QFile f(yol);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
    }
    void cleanup() { Saat::Ayarla({}); }

    void yeniKlasorHerDosyayiTablolariylaKurar()
    {
        QTemporaryDir tmp;
        const QString klasor = tmp.filePath(u"veri/alt"_s);
        Veri veri(klasor);
        for (const char* ad : {"GENEL.MDB", "AYNIYAT.MDB", "HESAPKOD.MDB", "OKUL.MDB", "Sirket.dat"})
            QVERIFY2(QFile::exists(QDir(klasor).filePath(QString::fromLatin1(ad))), ad);

        // One Sabit row, for the month of the clock.
        Veritabani& genel = veri.Genel();
        QCOMPARE(genel.Satirlar(u"select Anahtar, CalisYil, CalisAy from Sabit"_s),
                 (QList<QStringList>{{"1", "2026", "3"}}));

        // The delivered plan, its main codes answering the main-account selection.
        const auto plan = Sema::KodListesi();
        QVERIFY(plan.size() > 90);
        QCOMPARE(tek(genel, u"select count(*) from HESAP_K"_s).toInt(), plan.size());
        QCOMPARE(tek(genel, u"select HesapAd from HESAP_K where HesapKod = '150'"_s), u"İlkmadde-Malzeme"_s);
        QCOMPARE(tek(genel, u"select group_concat(HesapKod) from HESAP_K where AnaBolum = 0"_s), u"150,253,254,255"_s);

        Veritabani& hk = veri.HesapKod();
        QCOMPARE(tek(hk, u"select count(*) from HesapKod1"_s).toInt(), plan.size());
        QCOMPARE(hk.Satirlar(u"select Alan4 is null, Alan4, Alan7 from HesapKod1 "
                             "where Alan1 = '150' and Alan2 = '01' and Alan3 = '04'"_s),
                 (QList<QStringList>{{"0", "", "Büro Sarf Malzemeleri"}}));
        QCOMPARE(tek(hk, u"select MalzAdi from HesapKod2 where HesapKod = '255 01 01'"_s),
                 u"Bilgisayarlar ve Çevre Birimleri"_s);

        Veritabani& ayniyat = veri.Ayniyat();
        // Tables of the earlier files that no screen uses yet are there too.
        for (const char* tablo : {"DUSUM_B", "ISTATIS"})
            QVERIFY(!sutunlar(ayniyat, QString::fromLatin1(tablo)).isEmpty());
        // Voucher look-ups go through indexes, not a scan of the lines.
        const QString plan1 = ayniyat.Satirlar(u"explain query plan select * from FIS where FisNo = 5 "
                                               "and Fcins = 'G' and Mid(Tarih,7,4) = '2026'"_s).value(0).value(3);
        QVERIFY2(plan1.contains(u"INDEX"_s), qPrintable(plan1));

        QVERIFY(tek(veri.Baglanti(Dosya::Sirket), u"select count(*) from Cari_T"_s).toInt() >= 5);
        QVERIFY(sutunlar(veri.Baglanti(Dosya::Okul), u"CariHesap_Hareket"_s).contains(u"ALACAK"_s));
    }

    void dosyaAdiBuyukKucukHarfAyirmaz()
    {
        QTemporaryDir tmp;
        Veri(tmp.path()).Genel().Calistir(u"update Sabit set KurumAdi = 'Deneme'"_s);
        QVERIFY(QFile::rename(tmp.filePath(u"GENEL.MDB"_s), tmp.filePath(u"genel.mdb"_s)));
        Veri veri(tmp.path());
        QVERIFY(!QDir(tmp.path()).entryList().contains(u"GENEL.MDB"_s));
        QCOMPARE(veri.Genel().Yol(), tmp.filePath(u"genel.mdb"_s));
        QCOMPARE(AlanGetir(veri.Genel(), u"Sabit"_s, u"KurumAdi"_s), u"Deneme"_s);
    }

    void yabanciDosyayaDokunulmaz_data()
    {
        QTest::addColumn<QByteArray>("icerik");
        QTest::newRow("metin") << QByteArray("Bu bir veri tabanı değil\n");
        QTest::newRow("bizim olmayan sqlite") << QByteArray();
    }
    void yabanciDosyayaDokunulmaz()
    {
        QFETCH(QByteArray, icerik);
        QTemporaryDir tmp;
        const QString yol = tmp.filePath(u"AYNIYAT.MDB"_s);
        if (icerik.isEmpty()) {
            // A database of another program: SQLite, but not ours.
            {
                QSqlDatabase db = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"yabanci"_s);
                db.setDatabaseName(yol);
                QVERIFY(db.open());
                QSqlQuery(db).exec(u"create table t (a)"_s);
            }
            QSqlDatabase::removeDatabase(u"yabanci"_s);
        } else {
            QFile f(yol);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(icerik);
        }
        const QByteArray onceki = oku(yol);
        const QString hata = HataMetni<VeriHatasi>([&] { Veri veri(tmp.path()); });
        QVERIFY2(hata.contains(u"bu programın veri dosyası değil"_s), qPrintable(hata));
        QCOMPARE(oku(yol), onceki);
    }

    // Only a new, empty folder gets new files; in a folder that holds data a
    // missing or empty file is named and nothing is made in its place.
    void eksikDosyaYerineYenisiYapilmaz_data()
    {
        QTest::addColumn<QString>("eksik");
        QTest::addColumn<bool>("bosDosya");
        QTest::addColumn<bool>("yalnizKopya");
        QTest::newRow("AYNIYAT yok") << u"AYNIYAT.MDB"_s << false << false;
        QTest::newRow("GENEL boş") << u"GENEL.MDB"_s << true << false;
        QTest::newRow("yalnız aylık kopya") << u"AYNIYAT.MDB"_s << false << true;
    }
    void eksikDosyaYerineYenisiYapilmaz()
    {
        QFETCH(QString, eksik);
        QFETCH(bool, bosDosya);
        QFETCH(bool, yalnizKopya);
        const Dosya dosya = eksik == u"GENEL.MDB"_s ? Dosya::Genel : Dosya::Ayniyat;
        QTemporaryDir tmp;
        { Veri veri(tmp.path()); }
        QVERIFY(QFile::copy(tmp.filePath(u"AYNIYAT.MDB"_s), tmp.filePath(u"ayniyat11.mdb"_s)));
        if (yalnizKopya)
            for (const char* ad : {"GENEL.MDB", "HESAPKOD.MDB", "OKUL.MDB", "Sirket.dat"})
                QVERIFY(QFile::remove(tmp.filePath(QString::fromLatin1(ad))));
        QVERIFY(QFile::remove(tmp.filePath(eksik)));
        if (bosDosya)
            QFile(tmp.filePath(eksik)).open(QIODevice::WriteOnly);
        const QStringList once = QDir(tmp.path()).entryList(QDir::Files);
        try {
            Veri veri(tmp.path());
            QFAIL("eksik dosya sessizce yeniden yapıldı");
        } catch (const EksikDosyaHatasi& h) {
            QVERIFY(h.Eksikler().contains(dosya));
            QVERIFY2(h.Mesaj().contains(eksik), qPrintable(h.Mesaj()));
        }
        QCOMPARE(QDir(tmp.path()).entryList(QDir::Files), once);
        QCOMPARE(QFileInfo(tmp.filePath(eksik)).size(), 0);

        // With the user's yes the file is made whole, with its tables.
        VeriKlasoru::Olustur(tmp.path(), {dosya});
        if (!yalnizKopya) {
            Veri veri(tmp.path());
            QCOMPARE(tek(veri.Genel(), u"select count(*) from Sabit"_s).toInt(), 1);
            QCOMPARE(tek(veri.Ayniyat(), u"select count(*) from FIS"_s).toInt(), 0);
        }
        QVERIFY(!QDir(tmp.filePath(u"olusturuluyor.tmp"_s)).exists());
        QVERIFY(!QDir(tmp.filePath(u"olusturuldu.tmp"_s)).exists());
    }

    // New files made whole but not all moved in when the run ended: the
    // opening moves in the rest, never over a file that holds data.
    void yarimKalanYeniDosyalarYerineGirer()
    {
        QTemporaryDir tmp, baska;
        { Veri(baska.path()); }
        Veri(tmp.path()).Ayniyat().Calistir(u"insert into FIS_B (FisNo) values (1)"_s);
        const QDir dizin(tmp.path());
        QVERIFY(QFile::remove(dizin.filePath(u"OKUL.MDB"_s)));
        QVERIFY(dizin.mkdir(u"olusturuldu.tmp"_s));
        for (const QString& ad : {u"OKUL.MDB"_s, u"AYNIYAT.MDB"_s})
            QVERIFY(QFile::copy(QDir(baska.path()).filePath(ad), dizin.filePath(u"olusturuldu.tmp/"_s + ad)));
        Veri veri(tmp.path());
        QCOMPARE(tek(veri.Ayniyat(), u"select count(*) from FIS_B"_s).toInt(), 1);
        QVERIFY(QFile::exists(dizin.filePath(u"OKUL.MDB"_s)));
        QVERIFY(!dizin.exists(u"olusturuldu.tmp"_s));
    }

    // A run cut short between the files of one write: the next opening takes
    // the other files back to the side the record names, once.
    void yarimKalanYazmaSonrakiAcilistaGeriAlinir()
    {
        QTemporaryDir tmp;
        {
            Veri veri(tmp.path());
            DosyalarArasi::Kaydet(veri.Genel(), u"Deneme"_s, {{Dosya::Ayniyat, u"delete from FIS_B"_s, {}}});
            veri.Ayniyat().Calistir(u"insert into FIS_B (FisNo, FCins) values (1, 'G')"_s);
            // The run ends here, before GENEL.MDB's part.
        }
        Veri veri(tmp.path());
        QCOMPARE(veri.Tamamlananlar(), QStringList{u"Yarım kalan işlem geri alındı: Deneme"_s});
        QCOMPARE(tek(veri.Ayniyat(), u"select count(*) from FIS_B"_s).toInt(), 0);
        QCOMPARE(tek(veri.Genel(), u"select count(*) from BEKLEYEN"_s).toInt(), 0);
        QVERIFY(Veri(tmp.path()).Tamamlananlar().isEmpty());
    }

    void yazilamayanKlasorAcikcaSoylenir()
    {
        QTemporaryDir tmp;
        QFile(tmp.filePath(u"dosya"_s)).open(QIODevice::WriteOnly);
        const QString hata = HataMetni<VeriHatasi>([&] { VeriKlasoru::Hazirla(tmp.filePath(u"dosya/veri"_s)); });
        QVERIFY2(hata.startsWith(u"Veri klasörü oluşturulamadı"_s), qPrintable(hata));
    }

    void klasorSecimiSirasi()
    {
        qputenv("TASINIR_VERI", "/tmp/ortamdaki");
        QCOMPARE(VeriKlasoru::Sec(u"/tmp/secenek"_s), u"/tmp/secenek"_s);
        QCOMPARE(VeriKlasoru::Sec({}), u"/tmp/ortamdaki"_s);
        qunsetenv("TASINIR_VERI");
        QVERIFY(!VeriKlasoru::Sec({}).isEmpty());
    }

    void islemYaHepYaHic()
    {
        Veritabani& vt = veri().Ayniyat();
        const QString hata = HataMetni<VeriHatasi>([&] {
            Islem islem(vt);
            vt.Calistir(u"insert into FIS_B (FisNo, FCins, Tarih) values (1, 'G', '01.02.2026')"_s);
            vt.Calistir(u"insert into YOK_BOYLE (a) values (1)"_s);
            islem.Onayla();
        });
        QVERIFY2(hata.contains(u"AYNIYAT.MDB"_s), qPrintable(hata));
        QCOMPARE(ToplamAl(vt, u"FIS_B"_s, u"FisNo"_s), 0.0);
        {
            Islem islem(vt);
            vt.Calistir(u"insert into FIS_B (FisNo, FCins, Tarih) values (7, 'G', '01.02.2026')"_s);
            islem.Onayla();
        }
        QCOMPARE(ToplamAl(vt, u"FIS_B"_s, u"FisNo"_s), 7.0);
    }

    void tekDegerSorgulari()
    {
        Veritabani& vt = veri().Genel();
        const QString t = u"Unite_K"_s, kod = u"UniteKod"_s;
        QCOMPARE(EnBuyukSayi(vt, t, kod), 0.0);
        QCOMPARE(AlanGetir(vt, t, u"UniteAd"_s), QString());
        QCOMPARE(EnBuyukMetin(vt, t, kod), QString());
        for (int i = 1; i <= 11; ++i)
            vt.Calistir(u"insert into Unite_K (UniteKod, UniteAd) values (?, ?)"_s,
                        {QString::number(i), u"  Birim %1  "_s.arg(i)});
        // The maximum of a text column is a text maximum: "9" beats "10".
        QCOMPARE(EnBuyukSayi(vt, t, kod), 9.0);
        QCOMPARE(EnBuyukMetin(vt, t, kod), u"9"_s);
        // Several rows: the last one answers, trimmed.
        QCOMPARE(AlanGetir(vt, t, u"UniteAd"_s, u" where UniteKod like ?"_s, {u"1%"_s}), u"Birim 11"_s);
        QCOMPARE(ToplamAl(vt, t, u"val(UniteKod)"_s), 66.0);
        QCOMPARE(ToplamAl(vt, t, u"val(UniteKod)"_s, u" where UniteKod = ?"_s, {u"yok"_s}), 0.0);
        // A value stored with a comma counts up to the comma.
        vt.Calistir(u"insert into Unite_K (UniteKod) values ('12,5')"_s);
        QCOMPARE(EnBuyukSayi(vt, t, kod, u" where UniteKod like '12%'"_s), 12.0);
        // An apostrophe is data.
        vt.Calistir(u"insert into Unite_K (UniteKod, UniteAd) values ('40', 'Müdür''ün Odası')"_s);
        QCOMPARE(AlanGetir(vt, t, kod, u" where UniteAd = ?"_s, {u"Müdür'ün Odası"_s}), u"40"_s);
    }

    // The functions the statements of the old program call. Val reads as
    // tst_kayit's val shows; here its three kinds of argument.
    void sqlIslevleri_data()
    {
        QTest::addColumn<QString>("ifade");
        QTest::addColumn<QVariant>("beklenen");
        QTest::newRow("Mid yıl") << "Mid('14.03.2026',7,4)" << QVariant(u"2026"_s);
        QTest::newRow("Mid kısa metin") << "Mid('150 01',8,1)" << QVariant(QString());
        QTest::newRow("Mid uzunluksuz") << "Mid('150 01 04',5)" << QVariant(u"01 04"_s);
        QTest::newRow("Mid Türkçe") << "Mid('ĞÜŞİÖÇ',2,3)" << QVariant(u"ÜŞİ"_s);
        QTest::newRow("Mid sayı") << "Mid(2026,3,2)" << QVariant(u"26"_s);
        QTest::newRow("Mid null") << "Mid(null,1,2) is null" << QVariant(1);
        QTest::newRow("val metin") << "val(' -3.5x')" << QVariant(-3.5);
        QTest::newRow("val hesap kodu") << "val('253 02 01 001')" << QVariant(2530201001.0);
        QTest::newRow("val tamsayı") << "val(42)" << QVariant(42);
        QTest::newRow("val null") << "val(null) is null" << QVariant(1);
        QTest::newRow("Len") << "Len('İğne')" << QVariant(4);
        QTest::newRow("Len boş") << "Len('')" << QVariant(0);
        QTest::newRow("Trim") << "'[' || Trim('  a b  ') || ']'" << QVariant(u"[a b]"_s);
        QTest::newRow("IsNull evet") << "\"IsNull\"(null)" << QVariant(-1);
        QTest::newRow("IsNull hayır") << "\"IsNull\"('')" << QVariant(0);
        QTest::newRow("like İ") << "'İSTANBUL' like 'ist%'" << QVariant(1);
        QTest::newRow("like I ı") << "'ILIK' like 'ılı_'" << QVariant(1);
        QTest::newRow("like I i değil") << "'ISPARTA' like 'isp%'" << QVariant(0);
        QTest::newRow("like yıldız") << "'Kağıt Havlu' like 'KAĞ*'" << QVariant(1);
        QTest::newRow("like ortada") << "'A4 Fotokopi Kağıdı' like '%kopi%ı'" << QVariant(1);
        QTest::newRow("like uymaz") << "'Zımba' like 'zin%'" << QVariant(0);
        QTest::newRow("like tam") << "'abc' like 'ab'" << QVariant(0);
        QTest::newRow("TarihSayi") << "TarihSayi('14.03.2026')" << QVariant(20260314);
        QTest::newRow("TarihSayi tek hane") << "TarihSayi('4.3.2026')" << QVariant(20260304);
        QTest::newRow("TarihSayi bozuk") << "TarihSayi('31.02.2026') is null" << QVariant(1);
        QTest::newRow("TarihSayi boş") << "TarihSayi('') is null" << QVariant(1);
    }
    void sqlIslevleri()
    {
        QFETCH(QString, ifade);
        QFETCH(QVariant, beklenen);
        const QVariant sonuc = tek(veri().Baglanti(Dosya::Sirket), u"select "_s + ifade);
        if (beklenen.typeId() == QMetaType::QString)
            QCOMPARE(sonuc.toString(), beklenen.toString());
        else
            QCOMPARE(sonuc.toDouble(), beklenen.toDouble());
    }

    void turkceSiralamaVeEsitlik()
    {
        Veritabani& vt = veri().Genel();
        const QString adlar = u"zarf Üniforma çanta Cetvel ılık İğne Dosya şişe Sabun Ölçek Oyun ğ Kâğıt Kalem"_s;
        for (const QString& ad : adlar.split(u' '))
            vt.Calistir(u"insert into URUN_K (HesapKod, MalzAdi) values (?, ?)"_s, {ad, ad});
        QCOMPARE(tek(vt, u"select group_concat(MalzAdi, ' ') from (select MalzAdi from URUN_K order by MalzAdi "
                         "COLLATE TR)"_s),
                 u"Cetvel çanta Dosya ğ ılık İğne Kâğıt Kalem Oyun Ölçek Sabun şişe Üniforma zarf"_s);
        // A statement that asks for it compares blind to case, the Turkish way.
        for (const QString& ad : {u"İĞNE"_s, u"ILIK"_s})
            QCOMPARE(tek(vt, u"select count(*) from URUN_K where MalzAdi = ? COLLATE TR"_s, {ad}).toInt(), 1);
        QVERIFY(SqlIslevleri::TurkceKarsilastir(u"ılık", u"ilik") < 0);
        QVERIFY(SqlIslevleri::TurkceBenzer(u"İSTANBUL", u"%tan%"));
    }

    void okuyanListeYaziciyiBeklemez()
    {
        Veritabani& liste = veri().Ayniyat();
        {
            Islem islem(liste);
            for (int i = 1; i <= 500; ++i)
                liste.Calistir(u"insert into FIS (FisNo, Tarih) values (?, '01.02.2026')"_s, {i});
            islem.Onayla();
        }
        // A list that has read only its first rows keeps its statement open.
        QSqlQuery okunan = liste.Sorgu(u"select FisNo from FIS order by FisNo"_s);
        QVERIFY(okunan.next());
        Veritabani kayit(liste.Yol());
        {
            Islem islem(kayit);
            kayit.Calistir(u"delete from FIS where FisNo = 500"_s);
            islem.Onayla();
        }
        int sayi = 1;
        while (okunan.next())
            ++sayi;
        QCOMPARE(sayi, 500);  // the reader keeps the picture it began with
    }

    // Both ends of the range count, the last day of the month included.
    void tarihCercevesi()
    {
        Veritabani& vt = veri().Ayniyat();
        for (const char* t : {"31.12.2025", "01.01.2026", "15.02.2026", "28.02.2026", "01.03.2026", ""})
            vt.Calistir(u"insert into FIS (Tarih, FisNo) values (?, 1)"_s, {QString::fromLatin1(t)});
        QCOMPARE(tek(vt, u"select count(*) from FIS where TarihSayi(Tarih) >= ? and TarihSayi(Tarih) <= ?"_s,
                     {SqlIslevleri::TarihSayisi(QDate(2026, 1, 1)), SqlIslevleri::TarihSayisi(QDate(2026, 2, 28))})
                     .toInt(),
                 3);
    }

    // Both ways of running a statement say in Turkish what to do, the
    // engine's text after it. As root a chmod would not stop the writes; the
    // engine's own read-only switch fails them the same way.
    void saltOkunurDosyaTurkceSoylenir()
    {
        QTemporaryDir tmp;
        Veritabani vt(tmp.filePath(u"deneme.db"_s), Acilis::Yeni);
        vt.Calistir(u"create table t (a)"_s);
        vt.Calistir(u"PRAGMA query_only = 1"_s);
        const QString sql = u"insert into t (a) values (1)"_s;
        for (const bool hazir : {false, true}) {
            const QString hata = HataMetni<VeriHatasi>([&] { hazir ? vt.Hazir(sql).Calistir() : vt.Calistir(sql); });
            QVERIFY2(hata.startsWith(u"Veri tabanı hatası (deneme.db): Dosyaya yazılamıyor; dosyanın ve klasörünün "
                                     u"yazma iznini denetleyiniz. Ayrıntı: attempt to write"_s),
                     qPrintable(hata));
        }
    }

    void bozukDosyaTurkceSoylenir()
    {
        QTemporaryDir tmp;
        const QString yol = tmp.filePath(u"deneme.db"_s);
        Veritabani(yol, Acilis::Yeni).Calistir(u"create table t (a)"_s);
        QFile dosya(yol);
        QVERIFY(dosya.open(QIODevice::ReadWrite) && dosya.seek(100));  // the header still says ours
        dosya.write(QByteArray(dosya.size() - 100, '\xAB'));
        dosya.close();
        const QString hata = HataMetni<VeriHatasi>([&] { Veritabani(yol).Sorgu(u"select count(*) from t"_s); });
        QVERIFY2(hata.startsWith(u"Veri tabanı hatası (deneme.db): Dosya bozulmuş; programı kapatıp dosyayı "
                                 u"yedeğinden geri alınız. Ayrıntı: "_s),
                 qPrintable(hata));
    }
};

QTEST_GUILESS_MAIN(TstVeritabani)
#include "tst_veritabani.moc"
