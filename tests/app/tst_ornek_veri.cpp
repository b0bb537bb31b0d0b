#include "dusum_kayit.h"
#include "fis_sayfasi.h"
#include "fis_toplam.h"
#include "komutlar.h"
#include "ornek_veri.h"
#include "saat.h"
#include "veri_klasoru.h"
#include "veritabani.h"
#include "veri.h"

#include <QHash>
#include <QSet>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QDate varsayilanGun(2025, 6, 18);

// Every row of the query, its fields joined; NULL shows as such.
QStringList satirlar(Veritabani& vt, const QString& sql)
{
    QSqlQuery sorgu = vt.Sorgu(sql);
    QStringList liste;
    while (sorgu.next()) {
        QStringList alanlar;
        for (int i = 0; i < sorgu.record().count(); ++i)
            alanlar.append(sorgu.isNull(i) ? QStringLiteral("<NULL>") : sorgu.value(i).toString());
        liste.append(alanlar.join(u'|'));
    }
    return liste;
}

int sayi(Veritabani& vt, const QString& sql)
{
    QSqlQuery sorgu = vt.Sorgu(sql);
    return sorgu.next() ? sorgu.value(0).toInt() : -1;
}

QSet<QString> kume(Veritabani& vt, const QString& sql)
{
    const QStringList liste = satirlar(vt, sql);
    return QSet<QString>(liste.begin(), liste.end());
}

QStringList dokum(const QString& klasor)
{
    Veri veri(klasor);
    Veritabani& genel = veri.Genel();
    Veritabani& ayniyat = veri.Ayniyat();
    QStringList liste;
    for (const char* tablo : {"Sabit", "URUN_K", "Unite_K", "Firma_K"})
        liste += satirlar(genel, QStringLiteral("select * from %1 order by rowid").arg(QLatin1String(tablo)));
    for (const char* tablo : {"FIS_B", "FIS", "DUSUM_B"})
        liste += satirlar(ayniyat, QStringLiteral("select * from %1 order by rowid").arg(QLatin1String(tablo)));
    return liste;
}

}

class TstOrnekVeri : public QObject
{
    Q_OBJECT

private slots:
    void init() { Saat::Ayarla(varsayilanGun); }
    void cleanup() { Saat::Ayarla(QDate()); }

    void ayniGirdiAyniSatirlar();
    void satirSayisi_data();
    void satirSayisi();
    void tarihlerVeNumaralar_data();
    void tarihlerVeNumaralar();
    void stokHicEksiyeDusmez();
    void kodlarTanimli();
    void fisKurallari_data();
    void fisKurallari();
    void sabitlerYazilir();
    void doluKlasorReddedilir_data();
    void doluKlasorReddedilir();
    void eksikDosyadaKomutYazmaz();
    void basilanTutarlarToplamiTutar();
    void dusumler();
};

void TstOrnekVeri::ayniGirdiAyniSatirlar()
{
    QTemporaryDir bir, iki;
    {
        Veri v(bir.path());
        OrnekVeriYaz(v, 2000);
    }
    {
        Veri v(iki.path());
        OrnekVeriYaz(v, 2000);
    }
    const QStringList ilk = dokum(bir.path());
    QVERIFY(ilk.size() > 2000);
    QCOMPARE(dokum(iki.path()), ilk);
}

void TstOrnekVeri::satirSayisi_data()
{
    QTest::addColumn<int>("satir");
    QTest::newRow("hiç") << 0;
    QTest::newRow("bir") << 1;
    QTest::newRow("bir fişin sınırı") << 25;
    QTest::newRow("varsayılan") << 3000;
}

void TstOrnekVeri::satirSayisi()
{
    QFETCH(int, satir);
    QTemporaryDir dizin;
    {
        Veri v(dizin.path());
        OrnekVeriYaz(v, satir);
    }
    Veri veri(dizin.path());
    Veritabani& genel = veri.Genel();
    Veritabani& ayniyat = veri.Ayniyat();
    QCOMPARE(sayi(ayniyat, QStringLiteral("select count(*) from FIS")), satir);
    const int fisler = sayi(ayniyat, QStringLiteral("select count(*) from FIS_B"));
    QVERIFY(fisler >= (satir + 24) / 25 && fisler <= satir);
    const int siniflar = sayi(genel, QStringLiteral("select count(*) from URUN_K"));
    QVERIFY2(siniflar >= 250 && siniflar <= 350, qPrintable(QString::number(siniflar)));
    const int uniteler = sayi(genel, QStringLiteral("select count(*) from Unite_K"));
    QVERIFY(uniteler >= 15 && uniteler <= 25);
    QVERIFY(sayi(genel, QStringLiteral("select count(*) from Firma_K")) > 0);
}

void TstOrnekVeri::tarihlerVeNumaralar_data()
{
    QTest::addColumn<QDate>("bugun");
    QTest::newRow("yıl ortası") << varsayilanGun;
    QTest::newRow("yılın ikinci günü") << QDate(2025, 1, 2);
    QTest::newRow("yılın son günü") << QDate(2024, 12, 31);
    QTest::newRow("pazar") << QDate(2023, 3, 5);
}

// Vouchers fall in this year and the two before, never after today, and
// each kind is numbered from 1 every year, without gaps, in date order.
void TstOrnekVeri::tarihlerVeNumaralar()
{
    QFETCH(QDate, bugun);
    Saat::Ayarla(bugun);
    QTemporaryDir dizin;
    {
        Veri v(dizin.path());
        OrnekVeriYaz(v, 3000);
    }
    Veri veri(dizin.path());
    Veritabani& vt = veri.Baglanti(Dosya::Ayniyat);

    const QSet<QString> yillar = kume(vt, QStringLiteral("select distinct Mid(Tarih,7,4) from FIS"));
    QSet<QString> beklenen;
    for (int yil = bugun.year() - 2; yil <= bugun.year(); ++yil)
        beklenen.insert(QString::number(yil));
    QVERIFY(yillar.contains(QString::number(bugun.year() - 2)));
    QVERIFY(yillar.contains(QString::number(bugun.year() - 1)));
    QVERIFY((yillar - beklenen).isEmpty());

    const QString sonra = QStringLiteral(" where TarihSayi(Tarih) is null or TarihSayi(Tarih) > %1")
                              .arg(bugun.toString(QStringLiteral("yyyyMMdd")));
    QCOMPARE(sayi(vt, QStringLiteral("select count(*) from FIS") + sonra), 0);
    QCOMPARE(sayi(vt, QStringLiteral("select count(*) from FIS_B") + sonra), 0);
    QCOMPARE(sayi(vt, QStringLiteral("select count(*) from FIS_B where BelgeTarih <> Tarih"
                                     " and TarihSayi(BelgeTarih) > TarihSayi(Tarih)")),
             0);

    QSqlQuery sorgu = vt.Sorgu(QStringLiteral("select FCins, Mid(Tarih,7,4), FisNo from FIS_B"
                                              " order by FCins, TarihSayi(Tarih), FisNo"));
    QHash<QString, int> son;
    while (sorgu.next()) {
        const QString anahtar = sorgu.value(0).toString() + sorgu.value(1).toString();
        const int no = sorgu.value(2).toInt();
        QCOMPARE(no, son.value(anahtar) + 1);
        son[anahtar] = no;
    }
    QVERIFY(son.contains(QStringLiteral("G") + QString::number(bugun.year() - 1)));
    QVERIFY(son.contains(QStringLiteral("C") + QString::number(bugun.year() - 1)));
}

// Issues draw on goods that came in before: the stock of a class, as the
// queries read it with val, is not below zero at the end of any day.
void TstOrnekVeri::stokHicEksiyeDusmez()
{
    QTemporaryDir dizin;
    {
        Veri v(dizin.path());
        OrnekVeriYaz(v, 20000);
    }
    Veri veri(dizin.path());
    Veritabani& vt = veri.Baglanti(Dosya::Ayniyat);
    QVERIFY(sayi(vt, QStringLiteral("select count(*) from FIS where FCins = 'C'")) > 1000);

    QSqlQuery sorgu = vt.Sorgu(QStringLiteral("select TarihSayi(Tarih), HesapKod, val(Miktar) - val(Cikan)"
                                              " from FIS order by 1"));
    QHash<QString, double> stok;
    QSet<QString> degisen;
    qint64 gun = 0;
    QString eksi;
    auto gunSonu = [&]() {
        for (const QString& kod : std::as_const(degisen))
            if (stok.value(kod) < 0 && eksi.isEmpty())
                eksi = QStringLiteral("%1 %2").arg(kod).arg(gun);
        degisen.clear();
    };
    while (sorgu.next()) {
        if (sorgu.value(0).toLongLong() != gun) {
            gunSonu();
            gun = sorgu.value(0).toLongLong();
        }
        const QString kod = sorgu.value(1).toString();
        stok[kod] += sorgu.value(2).toDouble();
        degisen.insert(kod);
    }
    gunSonu();
    QVERIFY2(eksi.isEmpty(), qPrintable(eksi));
}

// Lines name classes and units that exist, with the class's unit and rate;
// classes sit under a leaf code of the plan.
void TstOrnekVeri::kodlarTanimli()
{
    QTemporaryDir dizin;
    {
        Veri v(dizin.path());
        OrnekVeriYaz(v, 3000);
    }
    Veri veri(dizin.path());
    Veritabani& genel = veri.Genel();
    Veritabani& ayniyat = veri.Ayniyat();

    const QSet<QString> siniflar = kume(genel, QStringLiteral("select HesapKod || '|' || Birimi || '|' || KDV1"
                                                              " from URUN_K"));
    const QSet<QString> kullanilan = kume(ayniyat, QStringLiteral("select distinct HesapKod || '|' || Birimi"
                                                                  " || '|' || KDV from FIS"));
    QVERIFY(kullanilan.size() > 50);
    QVERIFY2((kullanilan - siniflar).isEmpty(), qPrintable(QStringList((kullanilan - siniflar).values()).join(u' ')));

    const QSet<QString> uniteler = kume(genel, QStringLiteral("select UniteKod from Unite_K"));
    const QSet<QString> verilen = kume(ayniyat, QStringLiteral("select distinct Unite from FIS where Unite <> ''"));
    QVERIFY(!verilen.isEmpty());
    QVERIFY((verilen - uniteler).isEmpty());
    QCOMPARE(int(uniteler.size()), sayi(genel, QStringLiteral("select count(*) from Unite_K")));

    QCOMPARE(sayi(genel, QStringLiteral("select count(*) from URUN_K u where HesapKod not glob"
                                        " '[0-9][0-9][0-9] [0-9][0-9] [0-9][0-9] [0-9][0-9][0-9]'"
                                        " or AnaHesapNo <> cast(substr(HesapKod, 1, 3) as integer)"
                                        " or Birimi is null or Len(Birimi) > 8"
                                        " or not exists (select 1 from HESAP_K h"
                                        " where h.HesapKod = substr(u.HesapKod, 1, 9))")),
             0);
}

void TstOrnekVeri::fisKurallari_data()
{
    QTest::addColumn<QString>("ihlal");
    const auto satir = [](const char* ad, const char* kosul) {
        QTest::newRow(ad) << QString::fromUtf8(kosul);
    };
    satir("satır başlığıyla aynı",
          "select count(*) from FIS f where not exists (select 1 from FIS_B b where b.FisNo = f.FisNo"
          " and b.FCins = f.FCins and b.Tarih = f.Tarih and b.BelgeSayi = f.BelgeSayi"
          " and b.BelgeTarih = f.BelgeTarih and (f.FCinss = 'D' or (b.KabulSayi = f.KabulSayi"
          " and b.KabulTarih = f.KabulTarih)))");
    satir("satırlar 1'den n'ye",
          "select count(*) from (select count(*) n, count(distinct Satir) d, min(Satir) a, max(Satir) z"
          " from FIS group by FCins, Tarih, FisNo) where n <> d or a <> 1 or z <> n or n > 25");
    satir("başlık özelliği ilk satırın",
          "select count(*) from FIS_B b where Ozellik <> (select substr(Ozellik, 1, 35) from FIS f"
          " where f.FisNo = b.FisNo and f.FCins = b.FCins and f.Tarih = b.Tarih and f.Satir = 1)");
    satir("sicil no",
          "select count(*) from FIS where SicilNo <> replace(HesapKod, ' ', '') || Mid(Tarih,7,4) || FisNo || '0'");
    satir("giriş başlığı",
          "select count(*) from FIS_B where FCins = 'G' and (KabulSayi = '' or NeredenGeldigi = ''"
          " or KabulTarih <> Tarih or BelgeSayi = '' or BelgeTur = '')");
    satir("çıkış başlığı",
          "select count(*) from FIS_B where FCins = 'C' and (KabulSayi <> '' or NeredenGeldigi <> ''"
          " or KabulTarih <> Tarih or TeslimAlan = '')");
    satir("giriş satırı",
          "select count(*) from FIS where FCins = 'G' and (val(Miktar) <= 0 or IslemTur not between 1 and 8"
          " or (Cikan <> '' and Cikan <> Miktar))");
    satir("çıkış satırı",
          "select count(*) from FIS where FCins = 'C' and (Miktar <> '' or val(Cikan) <= 0"
          " or IslemTur not between 9 and 19 or (IslemTur = 10 and HesapKod not like '150%'))");
    satir("verilen mal kime verildiği ile",
          "select count(*) from FIS where (Cikan = '') <> (Unite = '') or (Unite = '') <> (KimeVerildigi = '')");
    satir("sayılar ondalık virgülle",
          "select count(*) from FIS where BirimFiyat glob '*[^0-9.]*' or BirimFiyat = ''"
          " or (BirimFiyat glob '*.*' and BirimFiyat not glob '*.[0-9][0-9]')"
          " or Miktar glob '*[^0-9.]*' or Cikan glob '*[^0-9.]*' or val(BirimFiyat) <= 0");
    satir("belge türü listeden",
          "select count(*) from FIS_B where BelgeTur not in ('Fatura', 'Karar', 'Makbuz', 'Onay', 'Protokol',"
          " 'Sözleşme', 'Tutanak', 'İstekBelgesi', 'Diğer')");
    satir("sabit alanlar", "select count(*) from FIS where FCinss not in ('', 'D') or OzelKod <> '' or AmbarNo <> 1");
    satir("düşülen, verilmiş dayanıklı giriş satırı",
          "select count(*) from FIS where FCinss = 'D' and (FCins <> 'G' or HesapKod like '150%' or Unite = ''"
          " or TarihSayi(KabulTarih) < TarihSayi(Tarih) or TarihSayi(KabulTarih) > TarihSayi(Tarih) + 20000)");
    satir("boş metin NULL değil",
          "select count(*) from FIS where Miktar is null or Cikan is null or Unite is null"
          " or KimeVerildigi is null or KabulSayi is null or FCinss is null or OzelKod is null");
    struct Sinir
    {
        const char* tablo;
        const char* alan;
        int uzunluk;
    };
    for (const Sinir& sinir : {Sinir{"FIS_B", "TeslimAlan", 32}, Sinir{"FIS_B", "NeredenGeldigi", 25},
                               Sinir{"FIS_B", "Ozellik", 35}, Sinir{"FIS_B", "BelgeSayi", 12},
                               Sinir{"FIS_B", "BelgeTur", 10}, Sinir{"FIS", "HesapKod", 20},
                               Sinir{"FIS", "Ozellik", 30}, Sinir{"FIS", "Birimi", 7}, Sinir{"FIS", "Unite", 4},
                               Sinir{"FIS", "KimeVerildigi", 30}}) {
        const QByteArray ad = QByteArray(sinir.tablo) + '.' + sinir.alan;
        const QByteArray kosul = QStringLiteral("select count(*) from %1 where %2 is null or Len(%2) > %3")
                                     .arg(QLatin1String(sinir.tablo), QLatin1String(sinir.alan))
                                     .arg(sinir.uzunluk)
                                     .toUtf8();
        satir(ad.constData(), kosul.constData());
    }
}

// Each rule counts the rows that break it.
void TstOrnekVeri::fisKurallari()
{
    QFETCH(QString, ihlal);
    QTemporaryDir dizin;
    {
        Veri v(dizin.path());
        OrnekVeriYaz(v, 3000);
    }
    Veri veri(dizin.path());
    Veritabani& vt = veri.Baglanti(Dosya::Ayniyat);
    QCOMPARE(sayi(vt, ihlal), 0);
}

void TstOrnekVeri::sabitlerYazilir()
{
    QTemporaryDir dizin;
    {
        Veri v(dizin.path());
        OrnekVeriYaz(v, 10);
    }
    Veri veri(dizin.path());
    Veritabani& vt = veri.Baglanti(Dosya::Genel);
    QCOMPARE(satirlar(vt, QStringLiteral("select Anahtar, CalisYil, CalisAy, KDV1, DamgaOran1, AyniyatMemuru2"
                                         " from Sabit")),
             QStringList{QStringLiteral("1|2025|6|20|0,948|Mehmet Kaya")});
    QCOMPARE(sayi(vt, QStringLiteral("select count(*) from Sabit where Len(KurumAdi) > 0 and Len(KurumKod) > 0"
                                     " and Len(Muhasebeci1) > 0 and Len(AyniyatMemuru1) > 0 and Len(itaAmiriAd) > 0"
                                     " and Len(AmbarMemurAd) > 0 and Len(HarcamaYetkilisi1) > 0"
                                     " and Len(HarcamaYetkilisi2) > 0 and Len(SayimBaskan) > 0"
                                     " and Len(SayimUyeUnvan2) > 0")),
             1);
}

void TstOrnekVeri::doluKlasorReddedilir_data()
{
    QTest::addColumn<QString>("tablo");
    QTest::addColumn<QString>("ekle");
    QTest::newRow("örnek veri yazılmış") << QString() << QString();
    QTest::newRow("malzeme sınıfı var") << QStringLiteral("URUN_K")
                                        << QStringLiteral("insert into URUN_K (HesapKod, MalzAdi)"
                                                          " values ('150 01 01 001', 'Kağıt')");
    QTest::newRow("fiş var") << QStringLiteral("FIS_B")
                             << QStringLiteral("insert into FIS_B (FisNo, Tarih, FCins) values (1, '02.01.2025', 'G')");
}

// A folder that holds records is refused and left as it was.
void TstOrnekVeri::doluKlasorReddedilir()
{
    QFETCH(QString, tablo);
    QFETCH(QString, ekle);
    QTemporaryDir dizin;
    if (ekle.isEmpty()) {
        {
            Veri v(dizin.path());
            OrnekVeriYaz(v, 50);
        }
    } else {
        Veri veri(dizin.path());
        veri.Baglanti(tablo == QLatin1String("URUN_K") ? Dosya::Genel : Dosya::Ayniyat).Calistir(ekle);
    }
    const QStringList once = dokum(dizin.path());
    try {
        {
            Veri v(dizin.path());
            OrnekVeriYaz(v, 50);
        }
        QFAIL("dolu klasöre yazdı");
    } catch (const VeriHatasi& hata) {
        QVERIFY2(hata.Mesaj().startsWith(QStringLiteral("Örnek veri yalnız boş bir veri klasörüne yazılır: ")),
                 qPrintable(hata.Mesaj()));
    }
    QCOMPARE(dokum(dizin.path()), once);
}

// A command on a folder that lacks a file stops before writing anything.
void TstOrnekVeri::eksikDosyadaKomutYazmaz()
{
    QTemporaryDir dizin;
    {
        Veri v(dizin.path());
        OrnekVeriYaz(v, 50);
    }
    QVERIFY(QFile::remove(dizin.filePath(QStringLiteral("AYNIYAT.MDB"))));
    const QStringList once = QDir(dizin.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    Komutlar::Secenekler secenek;
    secenek.cikti = dizin.filePath(QStringLiteral("formlar"));
    QCOMPARE(Komutlar::Calistir({QStringLiteral("ornek-formlar")}, dizin.path(), secenek), 1);
    secenek.no = QStringLiteral("1");
    secenek.cins = QStringLiteral("G");
    secenek.yil = QStringLiteral("2025");
    secenek.cikti = dizin.filePath(QStringLiteral("fis.pdf"));
    QCOMPARE(Komutlar::Calistir({QStringLiteral("yazdir"), QStringLiteral("fis")}, dizin.path(), secenek), 1);
    QCOMPARE(QDir(dizin.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), once);
}

// Prices carry their kuruş after a point, as the voucher screen asks: on
// every printed voucher of the sample the line amounts add up to the total.
void TstOrnekVeri::basilanTutarlarToplamiTutar()
{
    QTemporaryDir dizin;
    Veri veri(dizin.path());
    OrnekVeriYaz(veri, 600);
    const auto sayi = [](QString metin) { return metin.trimmed().remove(u'.').replace(u',', u'.').toDouble(); };
    int fisSayisi = 0;
    for (const QStringList& fis :
         veri.Ayniyat().Satirlar(QStringLiteral("select FisNo, FCins, Mid(Tarih,7,4) from FIS_B"))) {
        const FisYazimi yazim = FisToplam::KayittanYazim(veri, fis[0], fis[1], fis[2]);
        const Sayfa sayfa = FisSayfasi(yazim, {});
        double satirlar = 0;
        QString toplam;
        for (const SayfaYazisi& y : sayfa.yazilar) {
            if (y.x == 9250)
                satirlar += sayi(y.metin);
            else if (y.metin.startsWith(QStringLiteral("    Toplam : ")))
                toplam = y.metin.mid(13);
        }
        QVERIFY2(qAbs(satirlar - sayi(toplam)) < 0.005,
                 qPrintable(QStringLiteral("%1 %2: satırlar %3, Toplam %4").arg(fis[1], fis[0]).arg(satirlar).arg(toplam)));
        ++fisSayisi;
    }
    QVERIFY(fisSayisi > 20);
}

// One write-off in each of the two years before and one this year, each
// finding its marked lines again; no line is marked twice.
void TstOrnekVeri::dusumler()
{
    QTemporaryDir dizin;
    Veri veri(dizin.path());
    OrnekVeriYaz(veri, 3000);
    const QList<QStringList> baslar =
        veri.Ayniyat().Satirlar(QStringLiteral("select FisNo, Mid(Tarih,7,4) from DUSUM_B order by rowid"));
    QCOMPARE(baslar, (QList<QStringList>{{"1", "2023"}, {"1", "2024"}, {"1", "2025"}}));
    int satirlar = 0;
    for (const QStringList& bas : baslar) {
        const int n = int(DusumKayit::Guncelle(veri.Ayniyat(), veri.Genel(), bas[0], bas[1]).size());
        QVERIFY(n >= 1 && n <= 3);
        satirlar += n;
    }
    QCOMPARE(sayi(veri.Ayniyat(), QStringLiteral("select count(*) from FIS where FCinss = 'D'")), satirlar);
}

QTEST_MAIN(TstOrnekVeri)
#include "tst_ornek_veri.moc"
