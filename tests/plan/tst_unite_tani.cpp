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

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include <memory>

class TstUniteTani : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_tmp;
    QPointer<Unite_TANI> m_ekran;

    QString klasor() const { return m_tmp->path(); }

    QVariant sql(const QString& komut, const QVariantList& degerler = {})
    {
        Veritabani vt(klasor(), Dosya::Genel);
        QSqlQuery q = vt.Sorgu(komut, degerler);
        return q.next() ? q.value(0) : QVariant();
    }
    void ekle(const QString& kod, const QString& ad)
    {
        sql(QStringLiteral("insert into Unite_K (UniteKod, UniteAd) values (?, ?)"), {kod, ad});
    }
    // Units 1 to n named "Birim 1" ...
    void birimler(int n)
    {
        for (int i = 1; i <= n; ++i)
            ekle(QString::number(i), QStringLiteral("Birim %1").arg(i));
    }
    QString adi(const QString& kod)
    {
        return sql(QStringLiteral("select group_concat(UniteAd, '|') from Unite_K where UniteKod = ?"), {kod})
            .toString();
    }

    void ac()
    {
        m_ekran = new Unite_TANI({QStringLiteral("2026"), QStringLiteral("3"), QStringLiteral("Örnek Okulu"), klasor()});
        m_ekran->show();
        etkinlestir();
    }
    void etkinlestir() { Etkinlestir(m_ekran); }
    template <typename T = QLineEdit>
    T* kontrol(const char* ad) const
    {
        return m_ekran->findChild<T*>(QString::fromLatin1(ad));
    }
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
    void init() { m_tmp = std::make_unique<QTemporaryDir>(); }
    void cleanup() { delete m_ekran; }

    // The proposal is the value of the text maximum plus one, shown at open.
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
        QFETCH(QString, oneri);
        for (const QString& k : kodlar)
            ekle(k, k);
        QCOMPARE(UniteTanim::Sonk(klasor()), oneri);
        ac();
        QCOMPARE(metin("UniteKod"), oneri);
        QCOMPARE(odak(), QStringLiteral("UniteKod"));
        QVERIFY(!kontrol<QPushButton>("c2")->isEnabled());
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
        QFETCH(QStringList, beklenen);
        for (const auto& [kod, ad] : {std::pair{"1", "Yazı İşleri"}, {"2", "Muhasebe"}, {"10", "Çay Ocağı"},
                                      {"3", "İdare"}, {"", "Kodsuz"}})
            ekle(QString::fromUtf8(kod), QString::fromUtf8(ad));
        QStringList kod;
        const auto sira = adaGore ? UniteTanim::Sira::Ad : UniteTanim::Sira::Kod;
        for (const QStringList& satir : UniteTanim::Liste(klasor(), kodSiniri, adSiniri, sira))
            kod << satir[0];
        QCOMPARE(kod, beklenen);
    }

    void kaydetGetirSil()
    {
        UniteTanim::Kaydet(klasor(), QStringLiteral(" 7"), QStringLiteral("O'Brien Atölyesi "));
        QCOMPARE(adi(QStringLiteral(" 7")), QStringLiteral("O'Brien Atölyesi "));
        QVERIFY(!UniteTanim::Getir(klasor(), QStringLiteral("7")));  // the code as typed
        const auto satir = UniteTanim::Getir(klasor(), QStringLiteral(" 7"));
        QVERIFY(satir);
        QCOMPARE(satir->UniteKod, QStringLiteral("7"));
        QCOMPARE(satir->UniteAd, QStringLiteral("O'Brien Atölyesi"));

        ekle(QStringLiteral("5"), QStringLiteral("İlk"));
        ekle(QStringLiteral("5"), QStringLiteral("İkinci"));
        UniteTanim::Kaydet(klasor(), QStringLiteral("5"), QStringLiteral("Yeni"));
        QCOMPARE(adi(QStringLiteral("5")), QStringLiteral("Yeni|İkinci"));

        UniteTanim::Sil(klasor(), QStringLiteral("5"));
        QVERIFY(!UniteTanim::Var(klasor(), QStringLiteral("5")));
        QVERIFY(UniteTanim::Var(klasor(), QStringLiteral(" 7")));
    }

    void adim_data()
    {
        QTest::addColumn<QString>("kod");
        QTest::addColumn<bool>("yukari");
        QTest::addColumn<QString>("sonuc");
        QTest::newRow("yukarı") << "5" << true << "6";
        QTest::newRow("boş kalır") << "" << true << "";
        QTest::newRow("harf 1 olur") << "abc" << true << "1";
        QTest::newRow("sıfırda kalır") << "0" << false << "0";
        QTest::newRow("harfte kalır") << "abc" << false << "abc";
    }
    void adim()
    {
        QFETCH(QString, kod);
        QFETCH(bool, yukari);
        QFETCH(QString, sonuc);
        QCOMPARE(UniteTanim::Adim(kod, yukari), sonuc);
    }

    void uniteListesiYazdir()
    {
        for (const char* kod : {"2", "10", "1"})
            ekle(QString::fromLatin1(kod), QStringLiteral("Ünite ") + QString::fromLatin1(kod));
        ekle(QString(), QStringLiteral("Kodsuz"));
        BellekCikti cikti;
        Yazici p(&cikti);
        UniteTanim::UniteListesiYazdir(klasor(), QStringLiteral("Örnek Okulu"), p);
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& s = cikti.belgeler[0].value(0);
        QCOMPARE(s.MetinNerede(10 * MmTwip, 5 * MmTwip), QStringLiteral("Örnek Okulu - Bilet Listesi       Tarih :"));
        const double x2 = 5 * MmTwip + 1000;
        QVERIFY(s.YaziNerede(5 * MmTwip, 15 * MmTwip)->kalin);
        QCOMPARE(s.MetinNerede(5 * MmTwip, 25 * MmTwip), QStringLiteral("10"));
        QCOMPARE(s.MetinNerede(x2, 30 * MmTwip), QStringLiteral("Ünite 2"));
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
        kontrol("UniteAd")->setText(QStringLiteral("eski"));
        if (tusKodu)
            tus(tusKodu);
        else
            QTest::mouseClick(kontrol<QToolButton>("BTYukari"), Qt::LeftButton);
        QCOMPARE(metin("UniteKod"), sonuc);
        const bool var = sonuc != u"0";
        QCOMPARE(metin("UniteAd"), var ? QStringLiteral("Birim ") + sonuc : QString());
        QCOMPARE(odak(), var ? QStringLiteral("UniteAd") : QStringLiteral("UniteKod"));
    }

    // Enter and the arrows run round the three boxes; Enter never saves, Esc closes.
    void enterYolu()
    {
        birimler(3);
        ac();
        kodYaz(QStringLiteral("2"));
        const struct
        {
            int tus;
            const char* odak;
        } yol[] = {{Qt::Key_Return, "UniteAd"}, {Qt::Key_Enter, "BiletFiyat"}, {Qt::Key_Return, "UniteKod"},
                   {Qt::Key_Down, "UniteAd"},   {Qt::Key_Down, "BiletFiyat"},  {Qt::Key_Up, "UniteAd"},
                   {Qt::Key_Up, "UniteKod"}};
        for (const auto& adim : yol) {
            if (odak() == u"UniteAd")
                QTest::keyClicks(kontrol("UniteAd"), QStringLiteral("x"));
            tus(adim.tus);
            QCOMPARE(odak(), QString::fromLatin1(adim.odak));
        }
        // Down from the code read the unit again over the first letter.
        QCOMPARE(metin("UniteAd"), QStringLiteral("Birim 2xx"));
        QCOMPARE(adi(QStringLiteral("2")), QStringLiteral("Birim 2"));
        tus(Qt::Key_Escape);
        QTRY_VERIFY(!m_ekran);
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
        TurkceYaz(kontrol("UniteAd"), QStringLiteral("Çağrı'nın Odası"));
        QVERIFY(kontrol<QPushButton>("c2")->isEnabled());
        ModalYanit soru(QStringLiteral("Evet"));
        if (dugme)
            QTest::mouseClick(kontrol<QPushButton>("c2"), Qt::LeftButton);
        else
            tus(Qt::Key_F1);
        QVERIFY(!soru.Goruldu());
        QCOMPARE(adi(kod), kaydedilir ? QStringLiteral("Çağrı'nın Odası") : QString());
        QCOMPARE(sql(QStringLiteral("select count(*) from Unite_K")).toInt(), kod == u"2" || !kaydedilir ? 3 : 4);
        QCOMPARE(m_ekran->DurumSatiri()->isVisible(), kaydedilir);
        if (kaydedilir)
            QCOMPARE(m_ekran->DurumSatiri()->text(), QStringLiteral("    Kayıt Başarılı  ... "));
        QCOMPARE(metin("UniteKod"), kod);  // the card stays as it is
        QCOMPARE(metin("UniteAd"), QStringLiteral("Çağrı'nın Odası"));
        // The offscreen platform makes no move events of the cursor.
        QWidget* alan = kontrol<ListeIzgarasi>("T")->viewport();
        QMouseEvent gecis(QEvent::MouseMove, QPointF(20, 20), alan->mapToGlobal(QPointF(20, 20)), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(alan, &gecis);
        QVERIFY(!m_ekran->DurumSatiri()->isVisible());
    }

    void kaydetHatasi()
    {
        ac();
        sql(QStringLiteral("create trigger kilit before insert on Unite_K begin select raise(abort, 'kilitli'); end"));
        kontrol("UniteAd")->setText(QStringLiteral("Depo"));
        ModalYanit yanit(QStringLiteral("Tamam"));
        tus(Qt::Key_F1);
        QVERIFY(yanit.Metin().startsWith(QStringLiteral("Veri tabanı hatası")));
        QCOMPARE(m_ekran->DurumSatiri()->text(), QStringLiteral("  Kayıt yapılamıyor.  "));
    }

    void f4YeniUnite()
    {
        birimler(3);
        ac();
        kodYaz(QStringLiteral("2"));
        tus(Qt::Key_Return);
        kontrol("BiletFiyat")->setText(QStringLiteral("5"));
        tus(Qt::Key_F4);
        QCOMPARE(metin("UniteKod"), QStringLiteral("4"));
        QCOMPARE(metin("UniteAd") + metin("BiletFiyat"), QString());
        QCOMPARE(odak(), QStringLiteral("UniteKod"));
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
        kodYaz(QStringLiteral("3"));
        ModalYanit yanit(cevap);
        tus(Qt::Key_F5);
        QCOMPARE(yanit.Metin(), QStringLiteral("   Bu Üniteyi silmek istiyor musunuz ?    "));
        QCOMPARE(yanit.Baslik(), QStringLiteral("Siliniyor"));
        QCOMPARE(UniteTanim::Var(klasor(), QStringLiteral("3")), !evet);
        QCOMPARE(metin("UniteKod"), QStringLiteral("3"));  // proposed again after a delete
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
        ekle(QStringLiteral("0"), QStringLiteral("Sıfır"));
        ac();
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
        QCOMPARE(metin("UniteKod"), getirilir ? kod : QStringLiteral("3"));
        QCOMPARE(metin("UniteAd").isEmpty(), !getirilir);
    }

    void suzgecler()
    {
        birimler(4);
        ekle(QStringLiteral("12"), QStringLiteral("Ambar"));
        ac();
        QCOMPARE(kodlar(), (QStringList{"1", "12", "2", "3", "4"}));
        QTest::keyClicks(kontrol("UniteKod1"), QStringLiteral("2"));
        QCOMPARE(kodlar(), (QStringList{"2", "3", "4"}));
        QTest::keyClicks(kontrol("UniteAd1"), QStringLiteral("z"));  // nothing: the list stays
        QCOMPARE(kodlar(), (QStringList{"2", "3", "4"}));
        kontrol("UniteKod1")->clear();
        kontrol("UniteAd1")->clear();
        QTest::mouseClick(kontrol<QRadioButton>("Op2"), Qt::LeftButton);
        QCOMPARE(kodlar(), (QStringList{"12", "1", "2", "3", "4"}));
    }

    // The button prints the list as it stands; F2 and F3 do nothing.
    void yazdir()
    {
        birimler(3);
        ac();
        BellekCikti cikti;
        m_ekran->CiktiSec(&cikti);
        tus(Qt::Key_F2);
        tus(Qt::Key_F3);
        QVERIFY(cikti.belgeler.isEmpty());
        QTest::keyClicks(kontrol("UniteKod1"), QStringLiteral("2"));
        QTest::mouseClick(kontrol<QPushButton>("CmdYaz"), Qt::LeftButton);
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& s = cikti.belgeler[0].value(0);
        QCOMPARE(s.MetinNerede(10 * MmTwip, 5 * MmTwip), QStringLiteral("Örnek Okulu - Bilet Listesi       Tarih :"));
        QCOMPARE(s.MetinNerede(5 * MmTwip + 1000, 20 * MmTwip), QStringLiteral("Birim 2"));
        QCOMPARE(s.yazilar.size(), 1 + 3 * 2);
    }
};

QTEST_MAIN(TstUniteTani)
#include "tst_unite_tani.moc"
