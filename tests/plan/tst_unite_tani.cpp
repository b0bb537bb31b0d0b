#include "ekran_testi.h"
#include "cikti.h"
#include "grid_yazdir.h"
#include "klavye.h"
#include "modal_yanit.h"
#include "unite_tani.h"
#include "unite_tanim.h"
#include "yazici.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QtTest>

using namespace Qt::StringLiterals;

class TstUniteTani : public QObject, protected EkranTesti<Unite_TANI>
{
    Q_OBJECT

    // The arrows of BT, in the key column of adimTuslari.
    enum { BTYukari = -1, BTAsagi = -2 };

    void ekle(const QString& kod, const QString& ad)
    {
        sql(u"insert into Unite_K (UniteKod, UniteAd) values (?, ?)"_s, {kod, ad});
    }
    // Units 1 to n named "Birim 1" ...
    void birimler(int n)
    {
        for (int i = 1; i <= n; ++i)
            ekle(QString::number(i), u"Birim %1"_s.arg(i));
    }
    QString adi(const QString& kod)
    {
        return sql(u"select group_concat(UniteAd, '|') from Unite_K where UniteKod = ?"_s, {kod}).toString();
    }
    QStringList kodlar() const { return IlkSutun(bul<ListeIzgarasi>(u"T"_s)); }
    void kodYaz(const QString& kod)
    {
        bul(u"UniteKod"_s)->setFocus();
        bul(u"UniteKod"_s)->clear();
        QTest::keyClicks(bul(u"UniteKod"_s), kod);
    }

private slots:
    void init() { Yenile(); }
    void cleanup() { delete m_ekran; }

    // The proposal is the value of the text maximum plus one.
    void sonk_data()
    {
        QTest::addColumn<QStringList>("kodlar");
        QTest::addColumn<QString>("oneri");
        QTest::newRow("boş") << QStringList() << "1";
        QTest::newRow("1-11 yine 10") << QStringList{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"} << "10";
        QTest::newRow("harf en büyük") << QStringList{"3", "A"} << "1";
    }
    void sonk()
    {
        QFETCH(QStringList, kodlar);
        for (const QString& k : kodlar)
            ekle(k, k);
        QTEST(UniteTanim::Sonk(veri().Genel()), "oneri");
    }

    // Bounds, not prefixes; codes compare as text, names the Turkish way.
    void liste_data()
    {
        QTest::addColumn<QString>("kodSiniri");
        QTest::addColumn<QString>("adSiniri");
        QTest::addColumn<bool>("adaGore");
        QTest::addColumn<QStringList>("beklenen");
        QTest::newRow("hepsi") << "" << " " << false << QStringList{"1", "10", "2", "3"};
        QTest::newRow("ada göre") << "" << "" << true << QStringList{"10", "3", "2", "1"};
        QTest::newRow("kod") << "2" << "" << false << QStringList{"2", "3"};
        QTest::newRow("ad") << "" << "i" << false << QStringList{"1", "2", "3"};
        QTest::newRow("ikisi") << "10" << "m" << false << QStringList{"2"};
        QTest::newRow("hiçbiri") << "9" << "" << false << QStringList();
    }
    void liste()
    {
        QFETCH(QString, kodSiniri);
        QFETCH(QString, adSiniri);
        QFETCH(bool, adaGore);
        for (const auto& [kod, ad] : {std::pair{"1", "Yazı İşleri"}, {"2", "Muhasebe"}, {"10", "Çay Ocağı"},
                                      {"3", "İdare"}, {"", "Kodsuz"}})
            ekle(QString::fromUtf8(kod), QString::fromUtf8(ad));
        QStringList kod;
        const auto sira = adaGore ? UniteTanim::Sira::Ad : UniteTanim::Sira::Kod;
        for (const QStringList& satir : UniteTanim::Liste(veri().Genel(), kodSiniri, adSiniri, sira))
            kod << satir[0];
        QTEST(kod, "beklenen");
    }

    void kaydetGetirSil()
    {
        UniteTanim::Kaydet(veri().Genel(), u" 7"_s, u"O'Brien Atölyesi "_s);
        QCOMPARE(adi(u" 7"_s), u"O'Brien Atölyesi "_s);
        QVERIFY(!UniteTanim::Getir(veri().Genel(), u"7"_s));  // the code as typed
        const auto satir = UniteTanim::Getir(veri().Genel(), u" 7"_s).value_or(UniteSatiri());
        QCOMPARE(satir.UniteKod + u'|' + satir.UniteAd, u"7|O'Brien Atölyesi"_s);

        ekle(u"5"_s, u"İlk"_s);
        ekle(u"5"_s, u"İkinci"_s);
        UniteTanim::Kaydet(veri().Genel(), u"5"_s, u"Yeni"_s);
        QCOMPARE(adi(u"5"_s), u"Yeni|İkinci"_s);

        UniteTanim::Sil(veri().Genel(), u"5"_s);
        QVERIFY(!UniteTanim::Var(veri().Genel(), u"5"_s));
        QVERIFY(UniteTanim::Var(veri().Genel(), u" 7"_s));
    }

    // Under the title, the units in the order of their codes as text, the
    // one without a code left out; the grid's layout is the grid's.
    void uniteListesiYazdir()
    {
        for (const char* kod : {"2", "10", "1"})
            ekle(QString::fromLatin1(kod), u"Ünite "_s + QString::fromLatin1(kod));
        ekle(QString(), u"Kodsuz"_s);
        BellekCikti cikti;
        Yazici p(&cikti);
        UniteTanim::UniteListesiYazdir(veri().Genel(), u"Örnek Okulu"_s, p);
        QCOMPARE(cikti.belgeler.size(), 1);
        QStringList yazilar;
        for (const SayfaYazisi& y : cikti.belgeler[0].value(0).yazilar)
            yazilar << y.metin;
        QCOMPARE(yazilar, QStringList({"Örnek Okulu - Bilet Listesi       Tarih :", "Ünite Kod", "Ünite Adı", "1",
                                       "Ünite 1", "10", "Ünite 10", "2", "Ünite 2"}));
    }

    void adim_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<bool>("yukari");
        QTest::addColumn<QString>("sonuc");
        // Plain steps are rows of adimTuslari.
        QTest::newRow("1 aşağı 0") << "1" << false << "0";
        QTest::newRow("0 aşağı kalır") << "0" << false << "0";
        QTest::newRow("boş yukarı kalır") << "" << true << "";
        QTest::newRow("harf yukarı 1") << "abc" << true << "1";
        QTest::newRow("harf aşağı kalır") << "abc" << false << "abc";
    }
    void adim()
    {
        QFETCH(QString, kod);
        QFETCH(bool, yukari);
        QTEST(UniteTanim::Adim(kod, yukari), "sonuc");
    }

    // Page Down, Page Up, Home and the arrows of BT step the code and bring
    // its unit; a code with no unit empties the name and keeps the focus.
    void adimTuslari_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<int>("tusKodu");
        QTest::addColumn<QString>("sonuc");
        QTest::newRow("PageDown") << "3" << int(Qt::Key_PageDown) << "4";
        QTest::newRow("PageUp") << "3" << int(Qt::Key_PageUp) << "2";
        QTest::newRow("PageUp, birim yok") << "1" << int(Qt::Key_PageUp) << "0";
        QTest::newRow("Home") << "5" << int(Qt::Key_Home) << "1";
        QTest::newRow("BT yukarı") << "5" << int(BTYukari) << "6";
        QTest::newRow("BT aşağı") << "5" << int(BTAsagi) << "4";
    }
    void adimTuslari()
    {
        QFETCH(QString, kod);
        QFETCH(int, tusKodu);
        QFETCH(QString, sonuc);
        birimler(6);
        ac();
        kodYaz(kod);
        bul(u"UniteAd"_s)->setText(u"eski"_s);
        if (tusKodu >= 0)
            Tus(tusKodu);
        else
            QTest::mouseClick(bul<QToolButton>(tusKodu == BTYukari ? u"BTYukari"_s : u"BTAsagi"_s), Qt::LeftButton);
        QCOMPARE(metin(u"UniteKod"_s), sonuc);
        const bool var = sonuc.toInt() > 0;
        QCOMPARE(metin(u"UniteAd"_s), var ? u"Birim "_s + sonuc : QString());
        QCOMPARE(Odak(), var ? u"UniteAd"_s : u"UniteKod"_s);
    }

    // Enter and the arrows run round the three boxes; Enter never saves, F4
    // starts a new unit.
    void enterYolu()
    {
        birimler(3);
        ac();
        kodYaz(u"2"_s);
        const std::pair<int, const char*> yol[] = {
            {Qt::Key_Return, "UniteAd"}, {Qt::Key_Enter, "BiletFiyat"}, {Qt::Key_Return, "UniteKod"},
            {Qt::Key_Down, "UniteAd"}, {Qt::Key_Down, "BiletFiyat"}, {Qt::Key_Up, "UniteAd"}, {Qt::Key_Up, "UniteKod"}};
        for (const auto& [tusu, sonraki] : yol) {
            if (Odak() == u"UniteAd")
                QTest::keyClicks(bul(u"UniteAd"_s), u"x"_s);
            Tus(tusu);
            QCOMPARE(Odak(), QString::fromLatin1(sonraki));
        }
        // Down from the code read the unit again over the first letter.
        QCOMPARE(metin(u"UniteAd"_s), u"Birim 2xx"_s);
        QCOMPARE(adi(u"2"_s), u"Birim 2"_s);
        // F4 proposes a new code and empties the card.
        bul(u"UniteAd"_s)->setFocus();
        bul(u"BiletFiyat"_s)->setText(u"5"_s);
        Tus(Qt::Key_F4);
        QCOMPARE(metin(u"UniteKod"_s) + u'|' + metin(u"UniteAd"_s) + metin(u"BiletFiyat"_s), u"4|"_s);
        QCOMPARE(Odak(), u"UniteKod"_s);
    }

    // F1 always saves, the button only with a code; neither asks. A failed
    // save shows the data error and never the success text.
    void kaydet_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<bool>("dugme");
        QTest::addColumn<bool>("kilitli");
        QTest::addColumn<QString>("durum");
        const QString basarili = u"    Kayıt Başarılı  ... "_s;
        QTest::newRow("F1 yeni") << "9" << false << false << basarili;
        QTest::newRow("F1 kodsuz") << "" << false << false << basarili;
        QTest::newRow("düğme") << "9" << true << false << basarili;
        QTest::newRow("düğme kodsuz") << " " << true << false << "";
        QTest::newRow("F1 yazılamaz") << "9" << false << true << "  Kayıt yapılamıyor.  ";
    }
    void kaydet()
    {
        QFETCH(QString, kod);
        QFETCH(bool, dugme);
        QFETCH(bool, kilitli);
        QFETCH(QString, durum);
        const bool kaydedilir = durum.contains(u"Başarılı");
        birimler(3);
        ac();
        if (kilitli)
            sql(u"create trigger kilit before insert on Unite_K begin select raise(abort, 'kilitli'); end"_s);
        kodYaz(kod);
        bul(u"UniteAd"_s)->setFocus();
        bul(u"UniteAd"_s)->clear();
        QVERIFY(!bul<QPushButton>(u"c2"_s)->isEnabled());
        TurkceYaz(bul(u"UniteAd"_s), u"Çağrı'nın Odası"_s);
        QVERIFY(bul<QPushButton>(u"c2"_s)->isEnabled());
        ModalYanit soru(u"Evet"_s);
        if (dugme)
            QTest::mouseClick(bul<QPushButton>(u"c2"_s), Qt::LeftButton);
        else
            Tus(Qt::Key_F1);
        QCOMPARE(soru.Goruldu(), kilitli);
        if (kilitli)
            QVERIFY2(soru.Metin().startsWith(u"Veri tabanı hatası"_s), qPrintable(soru.Metin()));
        QCOMPARE(adi(kod), kaydedilir ? u"Çağrı'nın Odası"_s : QString());
        QCOMPARE(sql(u"select count(*) from Unite_K"_s).toInt(), kaydedilir ? 4 : 3);
        QLabel* durumSatiri = m_ekran->DurumSatiri();
        QCOMPARE(durumSatiri->isVisible() ? durumSatiri->text() : QString(), durum);
        QCOMPARE(metin(u"UniteKod"_s) + metin(u"UniteAd"_s), kod + u"Çağrı'nın Odası"_s);  // the card stays
        // The offscreen platform makes no move events of the cursor.
        QWidget* alan = bul<ListeIzgarasi>(u"T"_s)->viewport();
        QMouseEvent gecis(QEvent::MouseMove, QPointF(20, 20), alan->mapToGlobal(QPointF(20, 20)), {}, {}, {});
        QApplication::sendEvent(alan, &gecis);
        QVERIFY(!durumSatiri->isVisible());
    }

    void f5Siler_data() { CevapSatirlari(); }
    void f5Siler()
    {
        QFETCH(QString, cevap);
        birimler(3);
        ac();
        kodYaz(u"3"_s);
        ModalYanit yanit(cevap);
        Tus(Qt::Key_F5);
        QCOMPARE(yanit.Metin(), u"   Bu Üniteyi silmek istiyor musunuz ?    "_s);
        QCOMPARE(yanit.Baslik(), u"Siliniyor"_s);
        QCOMPARE(metin(u"UniteKod"_s), u"3"_s);  // proposed again after a delete
        QCOMPARE(kodlar(), cevap == u"Evet" ? QStringList({"1", "2"}) : QStringList({"1", "2", "3"}));
    }

    // Enter on a row worth more than 0, or a double click, brings its unit.
    void listedenGetir_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<bool>("cift");
        QTest::addColumn<bool>("getirilir");
        QTest::newRow("Enter") << "2" << false << true;
        QTest::newRow("Enter 0") << "0" << false << false;
        QTest::newRow("çift tık 0") << "0" << true << true;
    }
    void listedenGetir()
    {
        QFETCH(QString, kod);
        QFETCH(bool, cift);
        QFETCH(bool, getirilir);
        birimler(2);
        ekle(u"0"_s, u"Sıfır"_s);
        ac();
        // At open the code box holds the proposal, and nothing can be saved yet.
        QCOMPARE(Odak() + metin(u"UniteKod"_s), u"UniteKod3"_s);
        QVERIFY(!bul<QPushButton>(u"c2"_s)->isEnabled());
        auto* T = bul<ListeIzgarasi>(u"T"_s);
        const int satir = int(kodlar().indexOf(kod)) + 1;
        T->setFocus();
        T->SatirSec(satir);
        if (cift)
            CiftTikla(T, satir);
        else
            Tus(Qt::Key_Return);
        QCOMPARE(metin(u"UniteKod"_s), getirilir ? kod : u"3"_s);
        QCOMPARE(metin(u"UniteAd"_s).isEmpty(), !getirilir);
    }

    // The bound boxes and the order refill the list, a bound that leaves
    // nothing keeps it; the button prints it as it stands, F2 and F3 do nothing.
    void suzgeclerVeYazdir()
    {
        birimler(4);
        ekle(u"12"_s, u"Ambar"_s);
        ac();
        BellekCikti cikti;
        m_ekran->CiktiSec(&cikti);
        Tus(Qt::Key_F2);
        Tus(Qt::Key_F3);
        QVERIFY(cikti.belgeler.isEmpty());
        QTest::keyClicks(bul(u"UniteKod1"_s), u"2"_s);
        QCOMPARE(kodlar(), (QStringList{"2", "3", "4"}));
        QTest::keyClicks(bul(u"UniteAd1"_s), u"z"_s);
        QCOMPARE(kodlar(), (QStringList{"2", "3", "4"}));
        QTest::mouseClick(bul<QPushButton>(u"CmdYaz"_s), Qt::LeftButton);
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& s = cikti.belgeler[0].value(0);
        QCOMPARE(s.MetinNerede(5 * MmTwip + 1000, 20 * MmTwip), u"Birim 2"_s);
        QCOMPARE(s.yazilar.size(), 1 + 4 * 2);
        bul(u"UniteKod1"_s)->clear();
        bul(u"UniteAd1"_s)->clear();
        QTest::mouseClick(bul<QRadioButton>(u"Op2"_s), Qt::LeftButton);
        QCOMPARE(kodlar(), (QStringList{"12", "1", "2", "3", "4"}));
    }
};

QTEST_MAIN(TstUniteTani)
#include "tst_unite_tani.moc"
