#include "ekran_testi.h"
#include "cikti.h"
#include "hata_metni.h"
#include "hesap_k.h"
#include "izgara.h"
#include "klavye.h"
#include "modal_yanit.h"
#include "sema.h"
#include "yazici.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QtTest>

using namespace Qt::StringLiterals;

using HesapPlani::Adim;
using HesapPlani::Sira;

class TstHesapPlani : public QObject, protected EkranTesti<HESAP_K>
{
    Q_OBJECT

    // The arrows of BT, in the key column of kutuTuslari.
    enum { BTYukari = -1, BTAsagi = -2 };

    // A small plan whose names sort differently in Turkish than by code.
    void planKur()
    {
        sql(u"delete from HESAP_K"_s);
        sql(u"insert into HESAP_K (HesapKod, HesapAd) values ('150', 'İlkmadde-Malzeme'), ('150 01', 'Çay Ocağı'), "
            "('150 02', 'Cam Eşya'), ('150 02 01', 'Dolap'), ('253', 'Tesis-Cihazlar'), ('253 01', 'Işıklandırma')"_s);
    }
    static QStringList kodlar(const QList<QStringList>& satirlar)
    {
        QStringList sonuc;
        for (const QStringList& s : satirlar)
            sonuc << s.value(0);
        return sonuc;
    }
    void ac()
    {
        planKur();
        EkranTesti::ac();
    }
    QStringList izgaraKodlari() const { return IlkSutun(bul<ListeIzgarasi>(u"T"_s)); }
    // Types the code into the emptied code box, which keeps the focus.
    void kodYaz(const QString& kod)
    {
        QLineEdit* k = bul(u"HesapKod"_s);
        k->setFocus();
        k->clear();
        QTest::keyClicks(k, kod);
    }

private slots:
    void init() { Yenile(); }
    void cleanup() { delete m_ekran; }

    void liste_data()
    {
        QTest::addColumn<QString>("kodSuzgeci");
        QTest::addColumn<QString>("adSuzgeci");
        QTest::addColumn<Sira>("sira");
        QTest::addColumn<QStringList>("beklenen");
        QTest::newRow("kod sırası") << "" << "" << Sira::HesapKod
                                    << QStringList{"150", "150 01", "150 02", "150 02 01", "253", "253 01"};
        QTest::newRow("ad sırası Türkçe") << "" << "" << Sira::HesapAd
                                          << QStringList{"150 02", "150 01", "150 02 01", "253 01", "150", "253"};
        QTest::newRow("kod kırpılır") << "  150 02 " << "" << Sira::HesapKod << QStringList{"150 02", "150 02 01"};
        QTest::newRow("noktasız i") << "" << "ı" << Sira::HesapKod << QStringList{"253 01"};
        QTest::newRow("noktalı i") << "" << "i" << Sira::HesapKod << QStringList{"150"};
        QTest::newRow("ad süzgeci kazanır") << "253" << "cam" << Sira::HesapKod << QStringList{"150 02"};
        QTest::newRow("yalnız baştan") << "" << "Ocağı" << Sira::HesapKod << QStringList{};
    }
    void liste()
    {
        QFETCH(QString, kodSuzgeci);
        QFETCH(QString, adSuzgeci);
        QFETCH(Sira, sira);
        planKur();
        QTEST(kodlar(HesapPlani::Liste(veri().Genel(), kodSuzgeci, adSuzgeci, sira)), "beklenen");
    }

    // The level tests consumers run, on the plan a new data folder gets.
    void teslimPlaniDuzeyleri_data()
    {
        QTest::addColumn<QString>("kosul");
        QTest::addColumn<int>("uzunluk");
        QTest::newRow("ana") << "Len(HesapKod) = 3" << 3;
        QTest::newRow("1. düzey") << "Mid(HesapKod,6,1) <> '' and Mid(HesapKod,8,1) = ''" << 6;
        QTest::newRow("1. düzey, öbür yazım") << "mid(HesapKod, 8, 1) = '' and mid(HesapKod, 5, 1) <> ''" << 6;
        QTest::newRow("2. düzey") << "Mid(HesapKod,11,1) = '' and Mid(HesapKod,9,1) <> ''" << 9;
        QTest::newRow("2. düzey, öbür yazım") << "mid(HesapKod,11,1) = '' and mid(HesapKod,8,1) <> ''" << 9;
    }
    void teslimPlaniDuzeyleri()
    {
        QFETCH(QString, kosul);
        QFETCH(int, uzunluk);
        QStringList beklenen;
        for (const auto& [kod, ad] : Sema::KodListesi())
            if (kod.size() == uzunluk)
                beklenen << kod;
        beklenen.sort();
        QVERIFY(!beklenen.isEmpty());
        QCOMPARE(kodlar(veri().Genel().Satirlar(u"select HesapKod from HESAP_K where %1 order by 1"_s.arg(kosul))),
                 beklenen);
    }

    void kaydet_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<QString>("ad");
        QTest::addColumn<QString>("saklanan");
        QTest::addColumn<QString>("grup");  // positions 5 to 6, the level 1 group
        QTest::addColumn<QString>("adSuzgeci");
        QTest::newRow("sonda boşluk kırpılır") << " 150 09 " << "  Yeni Sınıf " << "150 09" << "09" << "yeni";
        QTest::newRow("iki boşluk yazıldığı gibi") << "150  09" << "Arada" << "150  09" << " 0" << "arada";
        QTest::newRow("kesme işareti veridir") << "150 10" << "O'Neil'in Çayı" << "150 10" << "10" << "o'neil";
        QTest::newRow("var olan değişir") << "150 01 " << "Kırtasiye" << "150 01" << "01" << "kırtasiye";
    }
    void kaydet()
    {
        QFETCH(QString, kod);
        QFETCH(QString, ad);
        QFETCH(QString, saklanan);
        QFETCH(QString, adSuzgeci);
        HesapPlani::Kaydet(veri().Genel(), kod, ad);
        // Each passes the level 1 test, which reads fixed positions only.
        QTEST(sql(u"select Mid(HesapKod,5,2) from HESAP_K where HesapKod = ? and "
                  "Mid(HesapKod,6,1) <> '' and Mid(HesapKod,8,1) = ''"_s, {saklanan}).toString(), "grup");
        QCOMPARE(HesapPlani::Getir(veri().Genel(), kod), std::optional<QString>(ad.trimmed()));
        QCOMPARE(HesapPlani::Liste(veri().Genel(), {}, adSuzgeci, Sira::HesapKod),
                 (QList<QStringList>{{saklanan, ad.trimmed()}}));
        QCOMPARE(HesapPlani::Getir(veri().Genel(), u"999 99"_s), std::nullopt);
    }

    // The delete takes the code untrimmed; nothing under the code goes with it.
    void sil_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<bool>("kalir");
        QTest::newRow("kod") << "150 02" << false;
        QTest::newRow("sonda boşlukla") << "150 02 " << true;
    }
    void sil()
    {
        QFETCH(QString, kod);
        planKur();
        sql(u"insert into URUN_K (HesapKod, MalzAdi) values ('150 02 01 001', 'Vazo')"_s);
        QVERIFY(HesapPlani::Var(veri().Genel(), kod));
        HesapPlani::Sil(veri().Genel(), kod);
        QTEST(HesapPlani::Var(veri().Genel(), kod), "kalir");
        QCOMPARE(HesapPlani::Getir(veri().Genel(), u"150 02 01"_s), std::optional<QString>("Dolap"));
        QCOMPARE(sql(u"select group_concat(MalzAdi) from URUN_K where Mid(HesapKod,1,6) = '150 02'"_s), u"Vazo"_s);
    }

    void kodAdimi_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<Adim>("adim");
        QTest::addColumn<QString>("sonuc");  // null: not a number, refused
        QTest::addColumn<bool>("getir");
        QTest::newRow("PgDn") << " 0150 " << Adim::SayfaAsagi << "151" << true;
        QTest::newRow("PgDn blank") << " " << Adim::SayfaAsagi << "1" << true;
        QTest::newRow("PgDn boş") << "" << Adim::SayfaAsagi << "" << false;
        QTest::newRow("PgDn boşluklu kod") << "150 01" << Adim::SayfaAsagi << QString() << false;
        QTest::newRow("PgUp 1") << "1" << Adim::SayfaYukari << "0" << true;
        QTest::newRow("PgUp 0") << "0" << Adim::SayfaYukari << "0" << false;
        QTest::newRow("PgUp harf") << "abc" << Adim::SayfaYukari << "abc" << false;
        QTest::newRow("BT yukarı") << "254" << Adim::BTYukari << "255" << true;
        QTest::newRow("BT yukarı harf") << "abc" << Adim::BTYukari << QString() << false;
        QTest::newRow("BT aşağı boş") << "" << Adim::BTAsagi << "0" << false;
        QTest::newRow("BT aşağı blank") << " " << Adim::BTAsagi << " " << false;
        QTest::newRow("BT aşağı boşluklu kod") << "150 01" << Adim::BTAsagi << QString() << false;
    }
    void kodAdimi()
    {
        QFETCH(QString, kod);
        QFETCH(Adim, adim);
        QFETCH(QString, sonuc);
        if (sonuc.isNull()) {
            QCOMPARE(HataMetni([&] { HesapPlani::KodAdimi(kod, adim); }),
                     u"Hesap Kod sayı olmadığından bir artırılıp azaltılamaz."_s);
            return;
        }
        const HesapPlani::AdimSonucu s = HesapPlani::KodAdimi(kod, adim);
        QCOMPARE(s.HesapKod, sonuc);
        QTEST(s.Getir, "getir");
    }

    // Under one empty line, code (cut to 19) at Tab 2 and name at Tab 23,
    // no heading; a page ends before a line would pass its foot.
    void yaz()
    {
        QList<QStringList> satirlar{{u"HesapKod"_s, u"Adı"_s}, {u"150 01 04 001 02 03 04"_s, u"Uzun"_s}};
        for (int i = 2; i <= 150; ++i)
            satirlar.append({QString::number(i), u"Ad %1"_s.arg(i)});
        BellekCikti cikti;
        Yazici p(&cikti);
        HesapPlani::Yaz(p, Izgara(satirlar, {1600, 8000}), 2, 9);
        const Belge belge = cikti.belgeler.value(0);
        QVERIFY(belge.size() > 1);
        p.FontSize = 9;
        const double satir = p.TextHeight(), sutun = p.SutunGenisligi();
        int r = 1;
        for (const Sayfa& s : belge) {
            QCOMPARE(s.yon, QPageLayout::Landscape);
            for (qsizetype i = 0; i + 1 < s.yazilar.size(); i += 2, ++r) {
                const double y = (&s == &belge[0] ? satir : 0) + double(i / 2) * satir;
                QCOMPARE(s.MetinNerede(sutun, y), satirlar[r][0].left(19));
                QCOMPARE(s.MetinNerede(22 * sutun, y), satirlar[r][1]);
                QCOMPARE(s.yazilar[i].punto, 9.0);
            }
            QVERIFY(s.yazilar.last().y + satir <= s.KagitBoyu().height() - 2 * KenarTwip);
        }
        QCOMPARE(r, 151);
    }

    // The keys of the code box and of the name box, and the arrows of BT; a
    // code that is no number is refused with a message.
    void kutuTuslari_data()
    {
        QTest::addColumn<QString>("kutu");
        QTest::addColumn<QString>("kod");
        QTest::addColumn<int>("tusu");
        QTest::addColumn<QString>("sonKod");
        QTest::addColumn<QString>("ad");
        QTest::addColumn<QString>("odakta");
        QTest::addColumn<bool>("uyari");
        const QString k = u"HesapKod"_s, a = u"HesapAd"_s;
        QTest::newRow("var, Enter") << k << "150 01" << int(Qt::Key_Return) << "150 01" << "Çay Ocağı" << k << false;
        QTest::newRow("yok, Enter") << k << "999" << int(Qt::Key_Return) << "999" << "" << a << false;
        QTest::newRow("var, aşağı") << k << "150 01" << int(Qt::Key_Down) << "150 01" << "Çay Ocağı" << a << false;
        QTest::newRow("yukarı") << k << "150 01" << int(Qt::Key_Up) << "150 01" << "eski" << k << false;
        QTest::newRow("Home") << k << "abc" << int(Qt::Key_Home) << "1" << "" << a << false;
        QTest::newRow("PgDn") << k << "149" << int(Qt::Key_PageDown) << "150" << "İlkmadde-Malzeme" << k << false;
        QTest::newRow("PgDn sayı değil") << k << "150 01" << int(Qt::Key_PageDown) << "150 01" << "eski" << k << true;
        QTest::newRow("PgUp") << k << "254" << int(Qt::Key_PageUp) << "253" << "Tesis-Cihazlar" << k << false;
        QTest::newRow("BT yukarı") << k << "252" << int(BTYukari) << "253" << "Tesis-Cihazlar" << k << false;
        QTest::newRow("BT aşağı boş") << k << "" << int(BTAsagi) << "0" << "eski" << k << false;
        QTest::newRow("ad, Enter") << a << "150" << int(Qt::Key_Return) << "150" << "eski" << a << false;
        QTest::newRow("ad, aşağı") << a << "150" << int(Qt::Key_Down) << "150" << "eski" << a << false;
        QTest::newRow("ad, yukarı") << a << "150" << int(Qt::Key_Up) << "150" << "eski" << k << false;
    }
    void kutuTuslari()
    {
        QFETCH(QString, kutu);
        QFETCH(int, tusu);
        QFETCH(QString, kod);
        QFETCH(QString, ad);
        ac();
        bul(u"HesapAd"_s)->setText(u"eski"_s);
        kodYaz(kod);
        bul(kutu)->setFocus();
        ModalYanit y(u"Tamam"_s);
        if (tusu >= 0)
            Tus(tusu);
        else
            QTest::mouseClick(bul<QToolButton>(tusu == BTYukari ? u"BTYukari"_s : u"BTAsagi"_s), Qt::LeftButton);
        QTEST(y.Goruldu(), "uyari");
        if (y.Goruldu())
            Etkinlestir(m_ekran);
        QTEST(metin(u"HesapKod"_s), "sonKod");
        QCOMPARE(metin(u"HesapAd"_s), ad);
        QTEST(Odak(), "odakta");
        QCOMPARE(bul<QPushButton>(u"c2"_s)->isEnabled(), !ad.isEmpty());
    }

    void yeniHesapKaydedilirVeListelenir()
    {
        ac();
        kodYaz(u"  "_s);
        bul(u"HesapAd"_s)->setText(u"Adsız"_s);
        QTest::mouseClick(bul<QPushButton>(u"c2"_s), Qt::LeftButton);
        QVERIFY(!m_ekran->DurumSatiri()->isVisible());  // a blank code is not saved
        kodYaz(u"150 09 "_s);
        Tus(Qt::Key_Return);
        QCOMPARE(Odak(), u"HesapAd"_s);
        TurkceYaz(bul(u"HesapAd"_s), u"Yeni Sınıf"_s);
        QVERIFY(bul<QPushButton>(u"c2"_s)->isEnabled());
        Tus(Qt::Key_F1);
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"    Kayıt Başarılı  ..  "_s);
        QVERIFY(m_ekran->DurumSatiri()->isVisible());
        QCOMPARE(HesapPlani::Getir(veri().Genel(), u"150 09"_s), std::optional<QString>(u"Yeni Sınıf"_s));
        QVERIFY(!izgaraKodlari().contains(u"150 09"_s));  // a save leaves the list as it was
        Tus(Qt::Key_F3);
        QVERIFY(izgaraKodlari().contains(u"150 09"_s));
        QCOMPARE(metin(u"HesapKod"_s) + metin(u"HesapAd"_s), QString());
        QTest::mouseMove(bul<ListeIzgarasi>(u"T"_s)->viewport(), QPoint(20, 20));
        QTRY_VERIFY(!m_ekran->DurumSatiri()->isVisible());
    }

    void kayitHatasiBasariDemez()
    {
        ac();
        sql(u"create trigger kilit before update on HESAP_K begin select raise(abort, 'x'); end"_s);
        kodYaz(u"150 01"_s);
        ModalYanit y(u"Tamam"_s);
        Tus(Qt::Key_F1);
        QVERIFY(y.Goruldu());
        QCOMPARE(y.Metin(), u"  Kayıt yapılamıyor.  "_s);
        QCOMPARE(m_ekran->DurumSatiri()->text(), y.Metin());
    }

    void f5Sorar()
    {
        ac();
        kodYaz(u"253 01"_s);
        Tus(Qt::Key_Return);
        for (const QString& cevap : QStringList{"Hayır", "Evet"}) {
            Etkinlestir(m_ekran);
            ModalYanit y(cevap);
            Tus(Qt::Key_F5);
            QCOMPARE(y.Metin(), u" Bu Hesap No yu Silmek istiyor musunuz ?"_s);
            QCOMPARE(y.Baslik(), u"Siliniyor"_s);
            const bool kalir = cevap == u"Hayır";
            QCOMPARE(HesapPlani::Var(veri().Genel(), u"253 01"_s), kalir);
            QCOMPARE(metin(u"HesapKod"_s).isEmpty() && metin(u"HesapAd"_s).isEmpty(), !kalir);
        }
    }

    // The filter boxes and the order reach the list.
    void suzgeclerVeSira()
    {
        ac();
        QTest::keyClicks(bul(u"HesapKod1"_s), u"150"_s);
        QCOMPARE(izgaraKodlari(), (QStringList{"150", "150 01", "150 02", "150 02 01"}));
        TurkceYaz(bul(u"HesapAd1"_s), u"ı"_s);
        QCOMPARE(izgaraKodlari(), QStringList{"253 01"});
        bul(u"HesapAd1"_s)->clear();
        QTest::mouseClick(bul<QRadioButton>(u"Op2"_s), Qt::LeftButton);
        QCOMPARE(izgaraKodlari(), (QStringList{"150 02", "150 01", "150 02 01", "150"}));
    }

    // A row whose code reads as 0 or less is not taken; F4 empties the card.
    void ciftTiklamaVeF4()
    {
        ac();
        HesapPlani::Kaydet(veri().Genel(), u"0"_s, u"Sıfır"_s);
        Tus(Qt::Key_F3);
        for (const int satir : {1, 3}) {
            CiftTikla(bul<ListeIzgarasi>(u"T"_s), satir);
            QCOMPARE(metin(u"HesapKod"_s) + u'|' + metin(u"HesapAd"_s), satir == 1 ? "|" : "150 01|Çay Ocağı");
        }
        Tus(Qt::Key_F4);
        QCOMPARE(Odak(), u"HesapKod"_s);
        QCOMPARE(metin(u"HesapKod"_s) + metin(u"HesapAd"_s), QString());
    }

    void yazdir_data()
    {
        QTest::addColumn<QString>("yon");
        QTest::addColumn<QString>("boy");
        QTest::addColumn<QPageLayout::Orientation>("sayfaYonu");
        QTest::newRow("yatay") << "OpYat" << "11" << QPageLayout::Landscape;
        QTest::newRow("dikey") << "OpDik" << "7" << QPageLayout::Portrait;
        QTest::newRow("boy sayı değil") << "OpDik" << "x" << QPageLayout::Portrait;
    }
    void yazdir()
    {
        QFETCH(QString, yon);
        QFETCH(QString, boy);
        ac();
        BellekCikti cikti;
        m_ekran->CiktiSec(&cikti);
        QTest::mouseClick(bul<QRadioButton>(yon), Qt::LeftButton);
        bul(u"YaziBoy"_s)->setText(boy);
        ModalYanit y(u"Tamam"_s);
        bul(u"YaziBoy"_s)->setFocus();
        Tus(Qt::Key_F2);
        if (boy == u"x") {
            QCOMPARE(y.Metin(), u"7 ile 12 Arası Rakam olmalı."_s);
            QVERIFY(cikti.belgeler.isEmpty());
            return;
        }
        const Sayfa& sayfa = cikti.belgeler.value(0).value(0);
        QTEST(sayfa.yon, "sayfaYonu");
        QCOMPARE(sayfa.yazilar.size(), 12);
        QCOMPARE(sayfa.yazilar[0].punto, boy.toDouble());
        QCOMPARE(sayfa.yazilar[10].metin, u"253 01"_s);
    }
};

QTEST_MAIN(TstHesapPlani)
#include "tst_hesap_plani.moc"
