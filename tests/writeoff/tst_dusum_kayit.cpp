#include "gecici_veri.h"
#include "dusum_kayit.h"
#include "dusum_yazimi.h"
#include "fis_kayit.h"
#include "saat.h"
#include "veritabani.h"
#include "veri.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TstDusumKayit : public QObject, protected GeciciVeri
{
    Q_OBJECT

    static bool evet() { return true; }

    // Entry voucher 4 of 2025 and 7 of 2026 (line 2 handed out to unit 3),
    // and an issue voucher 7 of 2026 whose line 1 has the same code.
    void girisler()
    {
        const auto fis = [this](const QString& no, const QString& tarih, const QString& cins,
                                const QList<QStringList>& satirlar) {
            FisEkrani f;
            f.FisNo = no, f.Tarih = tarih, f.FCins = f.Hangi = cins;
            f.CalisYil = tarih.mid(6), f.CalisAy = u"3"_s;
            f.Satirlar = satirlar;
            QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, evet), KayitSonucu::Kaydedildi);
        };
        const QStringList masa = {"", "255 02 01 001", "", "CEVİZ MASA", "ADET", "2", "1500", "", "", "1",
                                  "", "", "", "20", "", "", ""};
        QStringList dolap = masa;
        dolap[1] = u"255 02 02 001"_s, dolap[3] = u"ÇELİK DOLAP BÜYÜK BOY İKİ KAPAKLI"_s, dolap[5] = u"1"_s;
        dolap[8] = u"3"_s, dolap[10] = u"1"_s, dolap[11] = u"AYŞE DEMİR"_s;
        fis(u"4"_s, u"20.05.2025"_s, u"G"_s, {masa});
        fis(u"7"_s, u"02.03.2026"_s, u"G"_s, {masa, dolap});
        QStringList cikis = masa;
        cikis[5].clear(), cikis[10] = u"1"_s;
        fis(u"7"_s, u"05.03.2026"_s, u"C"_s, {cikis});
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi) values ('255 02 01 001', 'Masa'), "
                                "('255 02 02 001', 'Çelik Dolap Büyük Boy Çift Kapaklı')"_s);
    }

    // A grid row as the material list fills it, with the quantity.
    static QStringList satir(const QString& kod, const QString& tarih, const QString& fisNo, const QString& sira,
                             const QString& miktar)
    {
        QStringList s(DusumSutun::Sayi);
        s[DusumSutun::Unite] = u"3"_s;
        s[DusumSutun::HesapKod] = kod;
        s[DusumSutun::Ozellik] = u"KIRIK"_s;
        s[DusumSutun::Miktar] = miktar;
        s[DusumSutun::BirimFiyat] = u"1500"_s;
        s[DusumSutun::Tarih] = tarih;
        s[DusumSutun::FisNo] = fisNo;
        s[DusumSutun::Satir] = sira;
        return s;
    }

    static DusumEkrani dusum(const QString& no, const QList<QStringList>& satirlar)
    {
        DusumEkrani d;
        d.FisNo = no, d.Tarih = u"14.03.2026"_s, d.CalisYil = u"2026"_s, d.CalisAy = u"3"_s;
        d.KomisyonBaskaniAdi = u" Mustafa Çelik "_s, d.KomisyonBaskaniUnvani = u"Müdür Yardımcısı"_s;
        d.UyeAdi = u"Zeynep Arslan"_s, d.UyeUnvani = u"Fizik Öğretmeni"_s;
        d.Satirlar = satirlar;
        return d;
    }

    // The marks of the line: Cikan, KabulSayi, KabulTarih, FCinss, Miktar.
    QStringList isaret(const QString& fisNo, const QString& cins, int sira)
    {
        return veri()
            .Ayniyat()
            .Satirlar(u"select Cikan, KabulSayi, KabulTarih, FCinss, Miktar from FIS where FisNo = ? and FCins = ? "
                      "and Satir = ? and Mid(Tarih,7,4) = '2026'"_s,
                      {fisNo, cins, sira})
            .value(0);
    }

    QList<QStringList> tablo(const QString& sql) { return veri().Ayniyat().Satirlar(sql); }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        girisler();
    }
    void cleanup() { Saat::Ayarla({}); }

    // The head copies the first row cut to its columns; the lines named are
    // marked whatever their kind, the quantity as typed; the write-off comes
    // back by its marks alone, with the class names.
    void kaydetVeGeriGetir()
    {
        QCOMPARE(DusumKayit::Sonk(veri().Ayniyat(), u"2026"_s), 1);
        QStringList ilk = satir(u"255 02 02 001"_s, u"02.03.2026"_s, u"7"_s, u"2"_s, u" 3 "_s);
        ilk[DusumSutun::MalzAdi] = u"Çelik Dolap Büyük Boy Çift Kapaklı"_s;
        ilk[DusumSutun::Ozellik] = u"ÇELİK DOLAP BÜYÜK BOY İKİ KAPAKLI"_s;
        ilk[DusumSutun::BirimFiyat] = u"123456789012345678901"_s;
        ilk[DusumSutun::Unite] = u" 1234567 "_s;
        QStringList bos = satir(QString(), u"02.03.2026"_s, u"7"_s, u"1"_s, u"9"_s);
        QStringList cikis = satir(u"255 02 01 001"_s, u"05.03.2026"_s, u"7"_s, u"1"_s, u"1"_s);
        const DusumEkrani d = dusum(u"3"_s, {ilk, bos, cikis});
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), d, evet), DusumSonucu::Kaydedildi);

        QCOMPARE(tablo(u"select FisNo, Tarih, KomisyonBaskaniAdi, UyeUnvani, FCins, MalzAdi, Ozellik, BirimFiyat, "
                       "Unite from DUSUM_B"_s),
                 (QList<QStringList>{{"3", "14.03.2026", "Mustafa Çelik", "Fizik Öğretmeni", "",
                                      "Çelik Dolap Büyük Boy Çif", "ÇELİK DOLAP BÜYÜK BOY İKİ", "12345678901234567890",
                                      "123456"}}));
        // A written-off 3 on a line of 1. The kind plays no part: of the
        // entry and the issue line with the number, line and code of the
        // third row, the one saved first takes the mark.
        QCOMPARE(isaret(u"7"_s, u"G"_s, 2), (QStringList{"3", "3", "14.03.2026", "D", "1"}));
        QCOMPARE(isaret(u"7"_s, u"G"_s, 1), (QStringList{"1", "3", "14.03.2026", "D", "2"}));
        QCOMPARE(isaret(u"7"_s, u"C"_s, 1).value(3), QString());
        QCOMPARE(DusumKayit::Sonk(veri().Ayniyat(), u"2026"_s), 4);
        // The movement list of the code counts marked lines as well.
        QCOMPARE(DusumKayit::HesapHareketListe(veri().Ayniyat(), u"255 02 01 001"_s).satirlar.size(), 3);

        DusumEkrani g;
        g.FisNo = u" 3"_s, g.CalisYil = u"2026"_s;
        QVERIFY(DusumKayit::Getir(veri().Ayniyat(), g));
        QCOMPARE((QStringList{g.FisNo, g.Tarih, g.KomisyonBaskaniAdi, g.KomisyonBaskaniUnvani, g.UyeAdi, g.UyeUnvani}),
                 (QStringList{"3", "14.03.2026", "Mustafa Çelik", "Müdür Yardımcısı", "Zeynep Arslan",
                              "Fizik Öğretmeni"}));
        const QList<QStringList> satirlar = DusumKayit::Guncelle(veri().Ayniyat(), veri().Genel(), u"03"_s, u"2026"_s);
        QCOMPARE(satirlar,
                 (QList<QStringList>{{"", "255 02 01 001", "Masa", "CEVİZ MASA", "ADET", "1", "1500", "02.03.2026",
                                      "7", "2026", "1", "2550201001202670", "", "", "", "", ""},
                                     {"3", "255 02 02 001", "Çelik Dolap Büyük Boy Çift Kapaklı",
                                      "ÇELİK DOLAP BÜYÜK BOY İKİ KAPA", "ADET", "3", "1500", "02.03.2026", "7",
                                      "2026", "2", "2550202001202670", "", "", "", "", ""}}));
        // Dated in another year it is saved, and comes back in that year only.
        DusumEkrani eski = dusum(u"4"_s, {satir(u"255 02 01 001"_s, u"20.05.2025"_s, u"4"_s, u"1"_s, u"2"_s)});
        eski.Tarih = u"30.12.2025"_s;
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), eski, evet), DusumSonucu::Kaydedildi);
        g.FisNo = u"4"_s;
        QVERIFY(!DusumKayit::Getir(veri().Ayniyat(), g));
        QVERIFY(DusumKayit::Guncelle(veri().Ayniyat(), veri().Genel(), u"4"_s, u"2026"_s).isEmpty());
        QCOMPARE(DusumKayit::Guncelle(veri().Ayniyat(), veri().Genel(), u"4"_s, u"2025"_s).size(), 1);
    }

    // Saving a number again rewrites its head and marks the rows on screen; a
    // row taken off keeps its mark, and a line written off again belongs to
    // the later write-off.
    void yenidenKaydet()
    {
        const QStringList masa = satir(u"255 02 01 001"_s, u"02.03.2026"_s, u"7"_s, u"1"_s, u"2"_s);
        const QStringList dolap = satir(u"255 02 02 001"_s, u"02.03.2026"_s, u"7"_s, u"2"_s, u"1"_s);
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), dusum(u"1"_s, {masa, dolap}), evet), DusumSonucu::Kaydedildi);
        DusumEkrani d = dusum(u"1"_s, {dolap});
        d.UyeAdi = u"Emre Koç"_s;
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), d, evet), DusumSonucu::Kaydedildi);
        QCOMPARE(tablo(u"select FisNo, UyeAdi, MalzAdi from DUSUM_B"_s), (QList<QStringList>{{"1", "Emre Koç", ""}}));
        QCOMPARE(DusumKayit::Guncelle(veri().Ayniyat(), veri().Genel(), u"1"_s, u"2026"_s).size(), 2);

        QStringList yarim = masa;
        yarim[DusumSutun::Miktar] = u"1"_s;
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), dusum(u"2"_s, {yarim}), evet), DusumSonucu::Kaydedildi);
        QCOMPARE(isaret(u"7"_s, u"G"_s, 1), (QStringList{"1", "2", "14.03.2026", "D", "2"}));
        QCOMPARE(DusumKayit::Guncelle(veri().Ayniyat(), veri().Genel(), u"1"_s, u"2026"_s).size(), 1);
    }

    // A refused save writes nothing: no number, No to the month question, a
    // row whose voucher fields are no numbers or that names no line, down
    // to the 25th row.
    void reddedilen_data()
    {
        QTest::addColumn<QString>("no");
        QTest::addColumn<QString>("ay");
        QTest::addColumn<int>("hataliSatir");
        QTest::addColumn<QString>("fisNo");
        QTest::addColumn<QString>("sira");
        QTest::addColumn<int>("sonuc");
        QTest::addColumn<QString>("mesaj");
        const int yok = int(DusumSonucu::FisNoYok);
        const int hata = -1;
        QTest::newRow("harfli numara") << "12a" << "3" << 0 << "" << "" << yok << "";
        QTest::newRow("sıfır") << "0" << "3" << 0 << "" << "" << yok << "";
        QTest::newRow("boş") << " " << "3" << 0 << "" << "" << yok << "";
        QTest::newRow("başka ay, hayır") << "1" << "2" << 0 << "" << "" << int(DusumSonucu::Vazgecildi) << "";
        QTest::newRow("fiş no harfli") << "1" << "3" << 3 << "7b" << "2" << hata
                                       << "3. satırdaki fiş numarası (\"7b\") ya da satır numarası (\"2\") bir sayı "
                                          "değil; hiçbir şey kaydedilmedi.";
        QTest::newRow("satır boş") << "1" << "3" << 2 << "7" << "" << hata
                                   << "2. satırdaki fiş numarası (\"7\") ya da satır numarası (\"\") bir sayı değil; "
                                      "hiçbir şey kaydedilmedi.";
        QTest::newRow("olmayan satır, 25.") << "1" << "3" << 25 << "7" << "3" << hata
                                            << "25. satırdaki fiş satırı bulunamadı: 2026 yılının 7 nolu fişinde 3. "
                                               "satır, \"255 02 02 001\" kodlu; hiçbir şey kaydedilmedi.";
    }
    void reddedilen()
    {
        QFETCH(QString, no);
        QFETCH(QString, ay);
        QFETCH(int, hataliSatir);
        QFETCH(QString, fisNo);
        QFETCH(QString, sira);
        QFETCH(int, sonuc);
        QFETCH(QString, mesaj);
        const QList<QStringList> once = tablo(u"select * from FIS order by rowid"_s);
        DusumEkrani d = dusum(no, {});
        d.CalisAy = ay;
        for (int i = 1; i <= qMax(hataliSatir, 1); ++i)
            d.Satirlar << satir(u"255 02 02 001"_s, u"02.03.2026"_s, u"7"_s, u"2"_s, u"1"_s);
        if (hataliSatir) {
            d.Satirlar[hataliSatir - 1][DusumSutun::FisNo] = fisNo;
            d.Satirlar[hataliSatir - 1][DusumSutun::Satir] = sira;
        }
        int gelen = -1;
        QString hata;
        try {
            gelen = int(DusumKayit::Kaydet(veri().Ayniyat(), d, [] { return false; }));
        } catch (const Hata& h) {
            hata = h.Mesaj();
        }
        QCOMPARE(gelen, sonuc);
        QCOMPARE(hata, mesaj);
        QVERIFY(tablo(u"select * from DUSUM_B"_s).isEmpty());
        QCOMPARE(tablo(u"select * from FIS order by rowid"_s), once);
    }

    // Delete takes the heads of the number in every year and leaves the
    // marks; saving the entry voucher again clears them.
    void silVeGirisinYenidenKaydi()
    {
        const QStringList masa = satir(u"255 02 01 001"_s, u"02.03.2026"_s, u"7"_s, u"1"_s, u"2"_s);
        DusumEkrani d = dusum(u"5"_s, {masa});
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), d, evet), DusumSonucu::Kaydedildi);
        DusumEkrani eski = d;
        eski.Tarih = u"10.10.2025"_s, eski.CalisYil = u"2025"_s;
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), eski, evet), DusumSonucu::Kaydedildi);
        d.FisNo = u"0"_s;
        DusumKayit::Sil(veri().Ayniyat(), d);
        QCOMPARE(tablo(u"select count(*) from DUSUM_B"_s).value(0).value(0), u"2"_s);
        d.FisNo = u"5"_s;
        DusumKayit::Sil(veri().Ayniyat(), d);
        QVERIFY(tablo(u"select * from DUSUM_B"_s).isEmpty());
        QCOMPARE(isaret(u"7"_s, u"G"_s, 1).value(3), u"D"_s);

        FisEkrani g;
        g.FisNo = u"7"_s, g.FCins = g.Hangi = u"G"_s, g.CalisYil = u"2026"_s, g.CalisAy = u"3"_s;
        QVERIFY(FisKayit::Getir(veri().Ayniyat(), g));
        g.Satirlar = FisKayit::SatirlariGetir(veri().Ayniyat(), veri().Genel(), g.FisNo, g.FCins, g.CalisYil).hucreler;
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), g, evet), KayitSonucu::Kaydedildi);
        // The written-off quantity stays as the grid showed it.
        QCOMPARE(isaret(u"7"_s, u"G"_s, 1), (QStringList{"2", "", "14.03.2026", "", "2"}));
    }

    // Only rows with a quantity and a price count; a comma is a decimal sign.
    void araToplam()
    {
        DusumEkrani d;
        d.Satirlar = {satir(u"K"_s, {}, {}, {}, u"2,5"_s), satir(u"K"_s, {}, {}, {}, QString()),
                      satir(u"K"_s, {}, {}, {}, u"1"_s)};
        d.Satirlar[0][DusumSutun::BirimFiyat] = u"10,2"_s;
        d.Satirlar[2][DusumSutun::BirimFiyat].clear();
        const DusumKayit::AraToplamlar t = DusumKayit::AraToplam(d);
        QCOMPARE(t.Text2, u"2,5"_s);
        QCOMPARE(t.Text3, u"25,5"_s);
    }

    // The VAT of rows 1 to 25 that have a quantity, every cell by plain Val.
    void kdvToplam()
    {
        DusumEkrani d;
        d.Satirlar = QList<QStringList>(26, satir(u"K"_s, {}, {}, {}, u"2"_s));
        for (QStringList& s : d.Satirlar)
            s[DusumSutun::KDV] = u"10"_s;
        d.Satirlar[1][DusumSutun::Miktar] = u"0"_s;
        d.Satirlar[2][DusumSutun::BirimFiyat] = u"12,5"_s;
        d.Satirlar[3][DusumSutun::KDV].clear();
        // 22 rows of 2 at 1500 and 10 %; the third at 12, the comma cutting.
        QCOMPARE(DusumKayit::KdvToplam(d), 22 * 2 * 1500 / 100. * 10 + 2 * 12 / 100. * 10);
    }

    // What the print takes from a saved write-off: its head, its marked
    // lines and their totals; the lines bring no rate. No such write-off
    // throws.
    void kayittanYazim()
    {
        const DusumEkrani d = dusum(u"3"_s, {satir(u"255 02 01 001"_s, u"02.03.2026"_s, u"7"_s, u"1"_s, u"2"_s)});
        QCOMPARE(DusumKayit::Kaydet(veri().Ayniyat(), d, evet), DusumSonucu::Kaydedildi);
        const DusumYazimi y = DusumKayit::KayittanYazim(veri(), u"3"_s, u"2026"_s);
        QCOMPARE((QStringList{y.d.Tarih, y.d.UyeAdi, y.Text2, y.KDVTOP}), (QStringList{d.Tarih, d.UyeAdi, "2", "0"}));
        QCOMPARE(y.d.Satirlar, DusumKayit::Guncelle(veri().Ayniyat(), veri().Genel(), u"3"_s, u"2026"_s));
        QVERIFY_THROWS_EXCEPTION(Hata, DusumKayit::KayittanYazim(veri(), u"3"_s, u"2025"_s));
    }

    // Earlier values of a commission field, trimmed, in the file's order,
    // only a repeat of the one before left out; no other field is read.
    void komisyonDegerleri()
    {
        Veritabani& vt = veri().Ayniyat();
        for (const char* ad : {"", "Ali", " Ali ", "Veli", "", "Ali"})
            vt.Calistir(u"insert into DUSUM_B (FisNo, FCins, UyeAdi) values (1, '', ?)"_s, {QString::fromUtf8(ad)});
        vt.Calistir(u"insert into DUSUM_B (FisNo, FCins, UyeAdi) values (1, 'Ge', 'Gelir')"_s);
        QCOMPARE(DusumKayit::KomisyonDegerleri(vt, u"UyeAdi"_s, QString()), (QStringList{"Ali", "Veli", "", "Ali"}));
        QVERIFY_THROWS_EXCEPTION(Hata, DusumKayit::KomisyonDegerleri(vt, u"UyeAdi from FIS --"_s, QString()));
    }
};

QTEST_MAIN(TstDusumKayit)
#include "tst_dusum_kayit.moc"
