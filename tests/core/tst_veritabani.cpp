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

class TstVeritabani : public QObject
{
    Q_OBJECT

    static QStringList sutunlar(Veritabani& vt, const QString& tablo)
    {
        QSqlQuery q = vt.Sorgu(QStringLiteral("select * from %1 where 0").arg(tablo));
        QStringList adlar;
        const QSqlRecord kayit = q.record();
        for (int i = 0; i < kayit.count(); ++i)
            adlar << kayit.fieldName(i);
        return adlar;
    }

    static QVariant tek(Veritabani& vt, const QString& sql, const QVariantList& degerler = {})
    {
        QSqlQuery q = vt.Sorgu(sql, degerler);
        return q.next() ? q.value(0) : QVariant();
    }

private slots:
    void init() { Saat::Ayarla(QDate(2026, 3, 14)); }
    void cleanup() { Saat::Ayarla({}); }

    void yeniKlasorHerDosyayiTablolariylaKurar()
    {
        QTemporaryDir tmp;
        const QString klasor = tmp.filePath(QStringLiteral("veri/alt"));
        Veri veri(klasor);
        for (const char* ad : {"GENEL.MDB", "AYNIYAT.MDB", "HESAPKOD.MDB", "OKUL.MDB", "Sirket.dat"})
            QVERIFY2(QFile::exists(QDir(klasor).filePath(QString::fromLatin1(ad))), ad);

        Veritabani& genel = veri.Baglanti(Dosya::Genel);
        QCOMPARE(tek(genel, QStringLiteral("select count(*) from Sabit")).toInt(), 1);
        QSqlQuery sabit = genel.Sorgu(QStringLiteral("Select * from Sabit where Anahtar = 1 "));
        QVERIFY(sabit.next());
        QCOMPARE(sabit.value(QStringLiteral("CalisYil")).toInt(), 2026);
        QCOMPARE(sabit.value(QStringLiteral("CalisAy")).toInt(), 3);
        for (const char* alan : {"DamSinir3", "SayimUyeUnvan2", "LigSponsoru", "itaAmiriAd", "Sezon1"})
            QVERIFY2(sutunlar(genel, QStringLiteral("Sabit")).contains(QString::fromLatin1(alan)), alan);

        const auto plan = Sema::KodListesi();
        QVERIFY(plan.size() > 90);
        QCOMPARE(tek(genel, QStringLiteral("select count(*) from HESAP_K")).toInt(), plan.size());
        QCOMPARE(AlanGetir(genel, QStringLiteral("HESAP_K"), QStringLiteral("HesapAd"),
                           QStringLiteral(" where HesapKod = ?"), {QStringLiteral("150")}),
                 QStringLiteral("İlkmadde-Malzeme"));
        // The main codes answer the main-account selection.
        QCOMPARE(tek(genel, QStringLiteral("select count(*) from HESAP_K where AnaBolum = 0")).toInt(), 4);
        // Level tests read the delivered codes by position.
        QCOMPARE(tek(genel, QStringLiteral("select count(*) from HESAP_K where Len(HesapKod) = 3")).toInt(), 4);
        const int duzey2 = tek(genel, QStringLiteral("select count(*) from HESAP_K where "
                                                     "Mid(HesapKod,11,1) = '' and Mid(HesapKod,9,1) <> ''"))
                               .toInt();
        QVERIFY(duzey2 > 40);

        Veritabani& hk = veri.Baglanti(Dosya::HesapKod);
        QCOMPARE(tek(hk, QStringLiteral("select count(*) from HesapKod1")).toInt(), plan.size());
        QSqlQuery alanlar = hk.Sorgu(QStringLiteral("select Alan1, Alan2, Alan3, Alan4, Alan7 from HesapKod1 "
                                                    "where Alan1 = '150' and Alan2 = '01' and Alan3 = '04'"));
        QVERIFY(alanlar.next());
        QCOMPARE(alanlar.value(3).toString(), QString());
        QVERIFY(!alanlar.isNull(3));
        QCOMPARE(alanlar.value(4).toString(), QStringLiteral("Büro Sarf Malzemeleri"));
        QCOMPARE(AlanGetir(hk, QStringLiteral("HesapKod2"), QStringLiteral("MalzAdi"),
                           QStringLiteral(" where HesapKod = ?"), {QStringLiteral("255 01 01")}),
                 QStringLiteral("Bilgisayarlar ve Çevre Birimleri"));

        Veritabani& ayniyat = veri.Baglanti(Dosya::Ayniyat);
        const QStringList fis = sutunlar(ayniyat, QStringLiteral("FIS"));
        for (const char* alan : {"Tarih", "FisNo", "FCinss", "Satir", "SicilNo", "Miktar", "Cikan", "KDV",
                                 "KimeVerildigi", "KabulTarih", "EsasDefAd", "AnaHesapNo"})
            QVERIFY2(fis.contains(QString::fromLatin1(alan)), alan);
        for (const char* tablo : {"FIS_B", "DUSUM_B", "ISTATIS"})
            QVERIFY(!sutunlar(ayniyat, QString::fromLatin1(tablo)).isEmpty());
        // Voucher look-ups go through indexes, not a scan of the lines.
        QSqlQuery plan1 = ayniyat.Sorgu(QStringLiteral("explain query plan select * from FIS where FisNo = 5 "
                                                       "and Fcins = 'G' and Mid(Tarih,7,4) = '2026'"));
        QVERIFY(plan1.next());
        QVERIFY2(plan1.value(3).toString().contains(QStringLiteral("INDEX")), qPrintable(plan1.value(3).toString()));

        Veritabani& sirket = veri.Baglanti(Dosya::Sirket);
        QVERIFY(tek(sirket, QStringLiteral("select count(*) from Cari_T")).toInt() >= 5);
        Veritabani& okul = veri.Baglanti(Dosya::Okul);
        QVERIFY(sutunlar(okul, QStringLiteral("CariHesap_Hareket")).contains(QStringLiteral("ALACAK")));
    }

    void dosyaAdiBuyukKucukHarfAyirmaz()
    {
        QTemporaryDir tmp;
        {
            Veri veri(tmp.path());
            Veritabani& vt = veri.Baglanti(Dosya::Genel);
            vt.Calistir(QStringLiteral("update Sabit set KurumAdi = ?"), {QStringLiteral("Deneme")});
        }
        QVERIFY(QFile::rename(tmp.filePath(QStringLiteral("GENEL.MDB")), tmp.filePath(QStringLiteral("genel.mdb"))));
        QVERIFY(QFile::rename(tmp.filePath(QStringLiteral("GENEL.MDB")), tmp.filePath(QStringLiteral("x"))) == false);
        Veri veri(tmp.path());
        QVERIFY(!QDir(tmp.path()).entryList().contains(QStringLiteral("GENEL.MDB")));
        Veritabani& vt = veri.Baglanti(Dosya::Genel);
        QCOMPARE(vt.Yol(), tmp.filePath(QStringLiteral("genel.mdb")));
        QCOMPARE(AlanGetir(vt, QStringLiteral("Sabit"), QStringLiteral("KurumAdi")), QStringLiteral("Deneme"));
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
        const QString yol = tmp.filePath(QStringLiteral("AYNIYAT.MDB"));
        if (icerik.isEmpty()) {
            // A database of another program: SQLite, but not ours.
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("yabanci"));
            db.setDatabaseName(yol);
            QVERIFY(db.open());
            QSqlQuery(db).exec(QStringLiteral("create table t (a)"));
            db.close();
            db = QSqlDatabase();
            QSqlDatabase::removeDatabase(QStringLiteral("yabanci"));
        } else {
            QFile f(yol);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(icerik);
        }
        QFile once(yol);
        QVERIFY(once.open(QIODevice::ReadOnly));
        const QByteArray onceki = once.readAll();
        once.close();

        try {
            Veri veri(tmp.path());
            QFAIL("yabancı dosya kabul edildi");
        } catch (const VeriHatasi& h) {
            QVERIFY2(h.Mesaj().contains(QStringLiteral("bu programın veri dosyası değil")), qPrintable(h.Mesaj()));
        }
        QFile sonra(yol);
        QVERIFY(sonra.open(QIODevice::ReadOnly));
        QCOMPARE(sonra.readAll(), onceki);
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
            QVERIFY(h.Eksikler().contains(eksik == u"GENEL.MDB"_s ? Dosya::Genel : Dosya::Ayniyat));
            QVERIFY2(h.Mesaj().contains(eksik), qPrintable(h.Mesaj()));
        }
        QCOMPARE(QDir(tmp.path()).entryList(QDir::Files), once);
        QCOMPARE(QFileInfo(tmp.filePath(eksik)).size(), 0);

        // With the user's yes the file is made whole, with its tables.
        VeriKlasoru::Olustur(tmp.path(), {eksik == u"GENEL.MDB"_s ? Dosya::Genel : Dosya::Ayniyat});
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
        {
            Veri veri(tmp.path());
            veri.Ayniyat().Calistir(u"insert into FIS_B (FisNo) values (1)"_s);
        }
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

    void yazilamayanKlasorAcikcaSoylenir()
    {
        QTemporaryDir tmp;
        QFile engel(tmp.filePath(QStringLiteral("dosya")));
        QVERIFY(engel.open(QIODevice::WriteOnly));
        engel.close();
        try {
            VeriKlasoru::Hazirla(tmp.filePath(QStringLiteral("dosya/veri")));
            QFAIL("klasör oluşturulamadığı halde hata yok");
        } catch (const VeriHatasi& h) {
            QVERIFY(h.Mesaj().startsWith(QStringLiteral("Veri klasörü oluşturulamadı")));
        }
    }

    void klasorSecimiSirasi()
    {
        qputenv("TASINIR_VERI", "/tmp/ortamdaki");
        QCOMPARE(VeriKlasoru::Sec(QStringLiteral("/tmp/secenek")), QStringLiteral("/tmp/secenek"));
        QCOMPARE(VeriKlasoru::Sec({}), QStringLiteral("/tmp/ortamdaki"));
        qunsetenv("TASINIR_VERI");
        QVERIFY(!VeriKlasoru::Sec({}).isEmpty());
    }

    void islemYaHepYaHic()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Veritabani& vt = veri.Baglanti(Dosya::Ayniyat);
        try {
            Islem islem(vt);
            vt.Calistir(QStringLiteral("insert into FIS_B (FisNo, FCins, Tarih) values (?, ?, ?)"),
                        {1, QStringLiteral("G"), QStringLiteral("01.02.2026")});
            vt.Calistir(QStringLiteral("insert into YOK_BOYLE (a) values (1)"));
            islem.Onayla();
            QFAIL("hatalı komut geçti");
        } catch (const VeriHatasi& h) {
            QVERIFY(h.Mesaj().contains(QStringLiteral("AYNIYAT.MDB")));
        }
        QCOMPARE(ToplamAl(vt, QStringLiteral("FIS_B"), QStringLiteral("FisNo")), 0.0);
        {
            Islem islem(vt);
            vt.Calistir(QStringLiteral("insert into FIS_B (FisNo, FCins, Tarih) values (?, ?, ?)"),
                        {7, QStringLiteral("G"), QStringLiteral("01.02.2026")});
            islem.Onayla();
        }
        QCOMPARE(ToplamAl(vt, QStringLiteral("FIS_B"), QStringLiteral("FisNo")), 7.0);
    }

    void tekDegerSorgulari()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Veritabani& vt = veri.Baglanti(Dosya::Genel);
        QCOMPARE(EnBuyukSayi(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteKod")), 0.0);
        QCOMPARE(AlanGetir(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteAd")), QString());
        QCOMPARE(EnBuyukMetin(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteKod")), QString());
        for (int i = 1; i <= 11; ++i)
            vt.Calistir(QStringLiteral("insert into Unite_K (UniteKod, UniteAd) values (?, ?)"),
                        {QString::number(i), QStringLiteral("  Birim %1  ").arg(i)});
        // The maximum of a text column is a text maximum: "9" beats "10".
        QCOMPARE(EnBuyukSayi(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteKod")), 9.0);
        QCOMPARE(EnBuyukMetin(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteKod")), QStringLiteral("9"));
        // Several rows: the last one answers, trimmed.
        QCOMPARE(AlanGetir(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteAd"),
                           QStringLiteral(" where UniteKod like ?"), {QStringLiteral("1%")}),
                 QStringLiteral("Birim 11"));
        QCOMPARE(ToplamAl(vt, QStringLiteral("Unite_K"), QStringLiteral("val(UniteKod)")), 66.0);
        QCOMPARE(ToplamAl(vt, QStringLiteral("Unite_K"), QStringLiteral("val(UniteKod)"),
                          QStringLiteral(" where UniteKod = ?"), {QStringLiteral("yok")}),
                 0.0);
        // A value stored with a comma counts up to the comma.
        vt.Calistir(QStringLiteral("insert into Unite_K (UniteKod) values ('12,5')"));
        QCOMPARE(EnBuyukSayi(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteKod"),
                             QStringLiteral(" where UniteKod like '12%'")),
                 12.0);
        // An apostrophe is data.
        vt.Calistir(QStringLiteral("insert into Unite_K (UniteKod, UniteAd) values (?, ?)"),
                    {QStringLiteral("40"), QStringLiteral("Müdür'ün Odası")});
        QCOMPARE(AlanGetir(vt, QStringLiteral("Unite_K"), QStringLiteral("UniteKod"),
                           QStringLiteral(" where UniteAd = ?"), {QStringLiteral("Müdür'ün Odası")}),
                 QStringLiteral("40"));
    }

    void sqlIslevleri_data()
    {
        QTest::addColumn<QString>("ifade");
        QTest::addColumn<QVariant>("beklenen");
        QTest::newRow("Mid yıl") << "Mid('14.03.2026',7,4)" << QVariant(QStringLiteral("2026"));
        QTest::newRow("Mid ay") << "Mid('14.03.2026',4,2)" << QVariant(QStringLiteral("03"));
        QTest::newRow("Mid kısa metin") << "Mid('150 01',8,1)" << QVariant(QString());
        QTest::newRow("Mid uzunluksuz") << "Mid('150 01 04',5)" << QVariant(QStringLiteral("01 04"));
        QTest::newRow("Mid Türkçe") << "Mid('ĞÜŞİÖÇ',2,3)" << QVariant(QStringLiteral("ÜŞİ"));
        QTest::newRow("Mid sayı") << "Mid(2026,3,2)" << QVariant(QStringLiteral("26"));
        QTest::newRow("Mid null") << "Mid(null,1,2) is null" << QVariant(1);
        QTest::newRow("val boş") << "val('')" << QVariant(0.0);
        QTest::newRow("val boşluklar") << "val(' 1 2 3')" << QVariant(123.0);
        QTest::newRow("val virgül") << "val('12,5')" << QVariant(12.0);
        QTest::newRow("val nokta") << "val('12.75')" << QVariant(12.75);
        QTest::newRow("val eksi") << "val(' -3.5x')" << QVariant(-3.5);
        QTest::newRow("val harf") << "val('abc')" << QVariant(0.0);
        QTest::newRow("val ikinci nokta") << "val('1.2.3')" << QVariant(1.2);
        QTest::newRow("val üs") << "val('1e3')" << QVariant(1000.0);
        QTest::newRow("val yarım üs") << "val('12e')" << QVariant(12.0);
        QTest::newRow("val hesap kodu") << "val('253 02 01 001')" << QVariant(2530201001.0);
        QTest::newRow("val tamsayı") << "val(42)" << QVariant(42);
        QTest::newRow("Len") << "Len('İğne')" << QVariant(4);
        QTest::newRow("Len boş") << "Len('')" << QVariant(0);
        QTest::newRow("Trim") << "'[' || Trim('  a b  ') || ']'" << QVariant(QStringLiteral("[a b]"));
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
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Veritabani& vt = veri.Baglanti(Dosya::Sirket);
        const QVariant sonuc = tek(vt, QStringLiteral("select ") + ifade);
        if (beklenen.typeId() == QMetaType::QString)
            QCOMPARE(sonuc.toString(), beklenen.toString());
        else
            QCOMPARE(sonuc.toDouble(), beklenen.toDouble());
    }

    void turkceSiralamaVeEsitlik()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Veritabani& vt = veri.Baglanti(Dosya::Genel);
        const QStringList adlar = {QStringLiteral("zarf"),   QStringLiteral("Üniforma"), QStringLiteral("çanta"),
                                   QStringLiteral("Cetvel"), QStringLiteral("ılık"),     QStringLiteral("İğne"),
                                   QStringLiteral("Dosya"),  QStringLiteral("şişe"),     QStringLiteral("Sabun"),
                                   QStringLiteral("Ölçek"),  QStringLiteral("Oyun"),     QStringLiteral("ğ"),
                                   QStringLiteral("Kâğıt"),  QStringLiteral("Kalem")};
        for (const QString& ad : adlar)
            vt.Calistir(QStringLiteral("insert into URUN_K (HesapKod, MalzAdi) values (?, ?)"), {ad, ad});
        QStringList sira;
        QSqlQuery q = vt.Sorgu(QStringLiteral("select MalzAdi from URUN_K order by MalzAdi COLLATE TR"));
        while (q.next())
            sira << q.value(0).toString();
        const QStringList beklenen = {QStringLiteral("Cetvel"), QStringLiteral("çanta"), QStringLiteral("Dosya"),
                                      QStringLiteral("ğ"),      QStringLiteral("ılık"),  QStringLiteral("İğne"),
                                      QStringLiteral("Kâğıt"),  QStringLiteral("Kalem"), QStringLiteral("Oyun"),
                                      QStringLiteral("Ölçek"),  QStringLiteral("Sabun"), QStringLiteral("şişe"),
                                      QStringLiteral("Üniforma"), QStringLiteral("zarf")};
        QCOMPARE(sira, beklenen);
        // A statement that asks for it compares blind to case, the Turkish way.
        QCOMPARE(tek(vt, QStringLiteral("select count(*) from URUN_K where MalzAdi = ? COLLATE TR"),
                     {QStringLiteral("İĞNE")})
                     .toInt(),
                 1);
        QCOMPARE(tek(vt, QStringLiteral("select count(*) from URUN_K where MalzAdi = ? COLLATE TR"),
                     {QStringLiteral("ILIK")})
                     .toInt(),
                 1);
        QVERIFY(SqlIslevleri::TurkceKarsilastir(u"ılık", u"ilik") < 0);
        QVERIFY(SqlIslevleri::TurkceBenzer(u"İSTANBUL", u"%tan%"));
    }

    void okuyanListeYaziciyiBeklemez()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Veritabani& liste = veri.Baglanti(Dosya::Ayniyat);
        {
            Islem islem(liste);
            for (int i = 1; i <= 500; ++i)
                liste.Calistir(QStringLiteral("insert into FIS (FisNo, Tarih) values (?, '01.02.2026')"), {i});
            islem.Onayla();
        }
        // A list that has read only its first rows keeps its statement open.
        QSqlQuery okunan = liste.Sorgu(QStringLiteral("select FisNo from FIS order by FisNo"));
        QVERIFY(okunan.next());
        Veritabani kayit(liste.Yol());
        {
            Islem islem(kayit);
            kayit.Calistir(QStringLiteral("delete from FIS where FisNo = 500"));
            islem.Onayla();
        }
        int sayi = 1;
        while (okunan.next())
            ++sayi;
        QCOMPARE(sayi, 500);  // the reader keeps the picture it began with
    }

    void tarihCercevesi()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Veritabani& vt = veri.Baglanti(Dosya::Ayniyat);
        for (const char* t : {"31.12.2025", "01.01.2026", "15.02.2026", "28.02.2026", "01.03.2026", ""})
            vt.Calistir(QStringLiteral("insert into FIS (Tarih, FisNo) values (?, 1)"), {QString::fromLatin1(t)});
        QCOMPARE(tek(vt, QStringLiteral("select count(*) from FIS where TarihSayi(Tarih) >= ? and TarihSayi(Tarih) <= ?"),
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
            try {
                hazir ? vt.Hazir(sql).Calistir() : vt.Calistir(sql);
                QFAIL("salt okunur dosyaya yazıldı");
            } catch (const VeriHatasi& h) {
                QVERIFY2(h.Mesaj().startsWith(u"Veri tabanı hatası (deneme.db): Dosyaya yazılamıyor; dosyanın ve "
                                              u"klasörünün yazma iznini denetleyiniz. Ayrıntı: attempt to write"_s),
                         qPrintable(h.Mesaj()));
            }
        }
    }

    void bozukDosyaTurkceSoylenir()
    {
        QTemporaryDir tmp;
        const QString yol = tmp.filePath(u"deneme.db"_s);
        {
            Veritabani vt(yol, Acilis::Yeni);
            vt.Calistir(u"create table t (a)"_s);
        }
        QFile dosya(yol);
        QVERIFY(dosya.open(QIODevice::ReadWrite) && dosya.seek(100));  // the header still says ours
        dosya.write(QByteArray(dosya.size() - 100, '\xAB'));
        dosya.close();
        try {
            Veritabani(yol).Sorgu(u"select count(*) from t"_s);
            QFAIL("bozuk dosya okundu");
        } catch (const VeriHatasi& h) {
            QVERIFY2(h.Mesaj().startsWith(u"Veri tabanı hatası (deneme.db): Dosya bozulmuş; programı kapatıp "
                                          u"dosyayı yedeğinden geri alınız. Ayrıntı: "_s),
                     qPrintable(h.Mesaj()));
        }
    }
};

QTEST_GUILESS_MAIN(TstVeritabani)
#include "tst_veritabani.moc"
