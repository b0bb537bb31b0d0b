#include "gecici_veri.h"
#include "etkinlestir.h"
#include "cikti.h"
#include "grid_yazdir.h"
#include "klavye.h"
#include "liste_izgarasi.h"
#include "modal_yanit.h"
#include "unite_tani.h"
#include "unite_tanim.h"
#include "veritabani.h"
#include "yazici.h"
#include "veri.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QtTest>

using namespace Qt::StringLiterals;

class TstUniteTani : public QObject, protected GeciciVeri
{
    Q_OBJECT

    QPointer<Unite_TANI> m_ekran;


    QVariant sql(const QString& komut, const QVariantList& degerler = {})
    {
        Veritabani& vt = veri().Baglanti(Dosya::Genel);
        QSqlQuery q = vt.Sorgu(komut, degerler);
        return q.next() ? q.value(0) : QVariant();
    }
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

    void ac()
    {
        m_ekran = new Unite_TANI({u"2026"_s, u"3"_s, u"Örnek Okulu"_s, &veri()});
        m_ekran->show();
        Etkinlestir(m_ekran);
    }
    template <typename T = QLineEdit> T* kontrol(const char* ad) const { return m_ekran->findChild<T*>(QString::fromLatin1(ad)); }
    QString metin(const char* ad) const { return kontrol(ad)->text(); }
    QString odak() const { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); }
    static void tus(int kod) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(kod)); }
    // The first column of the list.
    QStringList kodlar() const
    {
        auto* T = kontrol<ListeIzgarasi>("T");
        QStringList k;
        for (int r = 1; r < T->Rows(); ++r)
            k << T->TextMatrix(r, 0);
        return k;
    }
    void kodYaz(const QString& kod)
    {
        kontrol("UniteKod")->setFocus();
        kontrol("UniteKod")->clear();
        QTest::keyClicks(kontrol("UniteKod"), kod);
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

    // Steps the screen does not show; 5 up and 0 down are in adimTuslari.
    void adim_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<bool>("yukari");
        QTest::addColumn<QString>("sonuc");
        QTest::newRow("boş kalır") << "" << true << "";
        QTest::newRow("harf 1 olur") << "abc" << true << "1";
        QTest::newRow("harfte kalır") << "abc" << false << "abc";
    }
    void adim()
    {
        QFETCH(QString, kod);
        QFETCH(bool, yukari);
        QTEST(UniteTanim::Adim(kod, yukari), "sonuc");
    }

    void uniteListesiYazdir()
    {
        for (const char* kod : {"2", "10", "1"})
            ekle(QString::fromLatin1(kod), u"Ünite "_s + QString::fromLatin1(kod));
        ekle(QString(), u"Kodsuz"_s);
        BellekCikti cikti;
        Yazici p(&cikti);
        UniteTanim::UniteListesiYazdir(veri().Genel(), u"Örnek Okulu"_s, p);
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& s = cikti.belgeler[0].value(0);
        QCOMPARE(s.MetinNerede(10 * MmTwip, 5 * MmTwip), u"Örnek Okulu - Bilet Listesi       Tarih :"_s);
        QVERIFY(s.YaziNerede(5 * MmTwip, 15 * MmTwip)->kalin);
        QCOMPARE(s.MetinNerede(5 * MmTwip, 25 * MmTwip), u"10"_s);
        QCOMPARE(s.MetinNerede(5 * MmTwip + 1000, 30 * MmTwip), u"Ünite 2"_s);
        QCOMPARE(s.yazilar.size(), 1 + 4 * 2);
    }

    // Page Down, Page Up, Home and the arrows step the code and bring its unit.
    void adimTuslari_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<int>("tusKodu");  // 0: the up arrow of BT
        QTest::addColumn<QString>("sonuc");
        QTest::newRow("PageDown") << "3" << int(Qt::Key_PageDown) << "4";
        QTest::newRow("PageUp") << "3" << int(Qt::Key_PageUp) << "2";
        QTest::newRow("PageUp 0") << "0" << int(Qt::Key_PageUp) << "0";
        QTest::newRow("Home") << "5" << int(Qt::Key_Home) << "1";
        QTest::newRow("BT") << "5" << 0 << "6";
    }
    void adimTuslari()
    {
        QFETCH(QString, kod);
        QFETCH(int, tusKodu);
        QFETCH(QString, sonuc);
        birimler(6);
        ac();
        kodYaz(kod);
        kontrol("UniteAd")->setText(u"eski"_s);
        if (tusKodu)
            tus(tusKodu);
        else
            QTest::mouseClick(kontrol<QToolButton>("BTYukari"), Qt::LeftButton);
        QCOMPARE(metin("UniteKod"), sonuc);
        const bool var = sonuc != u"0";
        QCOMPARE(metin("UniteAd"), var ? u"Birim "_s + sonuc : QString());
        QCOMPARE(odak(), var ? u"UniteAd"_s : u"UniteKod"_s);
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
            if (odak() == u"UniteAd")
                QTest::keyClicks(kontrol("UniteAd"), u"x"_s);
            tus(tusu);
            QCOMPARE(odak(), QString::fromLatin1(sonraki));
        }
        // Down from the code read the unit again over the first letter.
        QCOMPARE(metin("UniteAd"), u"Birim 2xx"_s);
        QCOMPARE(adi(u"2"_s), u"Birim 2"_s);
        // F4 proposes a new code and empties the card.
        kontrol("UniteAd")->setFocus();
        kontrol("BiletFiyat")->setText(u"5"_s);
        tus(Qt::Key_F4);
        QCOMPARE(metin("UniteKod") + u'|' + metin("UniteAd") + metin("BiletFiyat"), u"4|"_s);
        QCOMPARE(odak(), u"UniteKod"_s);
    }

    // F1 always saves, the button only with a code; neither asks.
    void kaydet_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<bool>("dugme");
        QTest::addColumn<bool>("kaydedilir");
        QTest::newRow("F1 var olan") << "2" << false << true;
        QTest::newRow("F1 yeni") << "9" << false << true;
        QTest::newRow("F1 kodsuz") << "" << false << true;
        QTest::newRow("düğme") << "9" << true << true;
        QTest::newRow("düğme kodsuz") << " " << true << false;
    }
    void kaydet()
    {
        QFETCH(QString, kod);
        QFETCH(bool, dugme);
        QFETCH(bool, kaydedilir);
        birimler(3);
        ac();
        kodYaz(kod);
        kontrol("UniteAd")->setFocus();
        kontrol("UniteAd")->clear();
        QVERIFY(!kontrol<QPushButton>("c2")->isEnabled());
        TurkceYaz(kontrol("UniteAd"), u"Çağrı'nın Odası"_s);
        QVERIFY(kontrol<QPushButton>("c2")->isEnabled());
        ModalYanit soru(u"Evet"_s);
        if (dugme)
            QTest::mouseClick(kontrol<QPushButton>("c2"), Qt::LeftButton);
        else
            tus(Qt::Key_F1);
        QVERIFY(!soru.Goruldu());
        QCOMPARE(adi(kod), kaydedilir ? u"Çağrı'nın Odası"_s : QString());
        QCOMPARE(sql(u"select count(*) from Unite_K"_s).toInt(), kod == u"2" || !kaydedilir ? 3 : 4);
        QLabel* durum = m_ekran->DurumSatiri();
        QCOMPARE(durum->isVisible() ? durum->text() : QString(), kaydedilir ? u"    Kayıt Başarılı  ... "_s : QString());
        QCOMPARE(metin("UniteKod") + metin("UniteAd"), kod + u"Çağrı'nın Odası"_s);  // the card stays as it is
        // The offscreen platform makes no move events of the cursor.
        QWidget* alan = kontrol<ListeIzgarasi>("T")->viewport();
        QMouseEvent gecis(QEvent::MouseMove, QPointF(20, 20), alan->mapToGlobal(QPointF(20, 20)), {}, {}, {});
        QApplication::sendEvent(alan, &gecis);
        QVERIFY(!durum->isVisible());
    }

    void kaydetHatasi()
    {
        ac();
        sql(u"create trigger kilit before insert on Unite_K begin select raise(abort, 'kilitli'); end"_s);
        kontrol("UniteAd")->setText(u"Depo"_s);
        ModalYanit yanit(u"Tamam"_s);
        tus(Qt::Key_F1);
        QVERIFY(yanit.Metin().startsWith(u"Veri tabanı hatası"_s));
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"  Kayıt yapılamıyor.  "_s);
    }

    void f5Siler_data()
    {
        QTest::addColumn<QString>("cevap");
        QTest::newRow("evet") << "Evet";
        QTest::newRow("hayır") << "Hayır";
    }
    void f5Siler()
    {
        QFETCH(QString, cevap);
        const bool evet = cevap == u"Evet";
        birimler(3);
        ac();
        kodYaz(u"3"_s);
        ModalYanit yanit(cevap);
        tus(Qt::Key_F5);
        QCOMPARE(yanit.Metin(), u"   Bu Üniteyi silmek istiyor musunuz ?    "_s);
        QCOMPARE(yanit.Baslik(), u"Siliniyor"_s);
        QCOMPARE(metin("UniteKod"), u"3"_s);  // proposed again after a delete
        QCOMPARE(kodlar(), evet ? QStringList({"1", "2"}) : QStringList({"1", "2", "3"}));
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
        QCOMPARE(odak() + metin("UniteKod"), u"UniteKod3"_s);
        QVERIFY(!kontrol<QPushButton>("c2")->isEnabled());
        auto* T = kontrol<ListeIzgarasi>("T");
        const int satir = int(kodlar().indexOf(kod)) + 1;
        T->setFocus();
        T->SatirSec(satir);
        if (cift) {
            const QPoint yer = T->visualRect(T->model()->index(satir - 1, 0)).center();
            // QTest sends the second press alone; the first comes before it.
            QTest::mouseClick(T->viewport(), Qt::LeftButton, {}, yer);
            QTest::mouseDClick(T->viewport(), Qt::LeftButton, {}, yer);
        } else {
            tus(Qt::Key_Return);
        }
        QCOMPARE(metin("UniteKod"), getirilir ? kod : u"3"_s);
        QCOMPARE(metin("UniteAd").isEmpty(), !getirilir);
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
        tus(Qt::Key_F2);
        tus(Qt::Key_F3);
        QVERIFY(cikti.belgeler.isEmpty());
        QTest::keyClicks(kontrol("UniteKod1"), u"2"_s);
        QCOMPARE(kodlar(), (QStringList{"2", "3", "4"}));
        QTest::keyClicks(kontrol("UniteAd1"), u"z"_s);
        QCOMPARE(kodlar(), (QStringList{"2", "3", "4"}));
        QTest::mouseClick(kontrol<QPushButton>("CmdYaz"), Qt::LeftButton);
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& s = cikti.belgeler[0].value(0);
        QCOMPARE(s.MetinNerede(5 * MmTwip + 1000, 20 * MmTwip), u"Birim 2"_s);
        QCOMPARE(s.yazilar.size(), 1 + 4 * 2);
        kontrol("UniteKod1")->clear();
        kontrol("UniteAd1")->clear();
        QTest::mouseClick(kontrol<QRadioButton>("Op2"), Qt::LeftButton);
        QCOMPARE(kodlar(), (QStringList{"12", "1", "2", "3", "4"}));
    }
};

QTEST_MAIN(TstUniteTani)
#include "tst_unite_tani.moc"
