#include "cikti.h"
#include "gecici_veri.h"
#include "etkinlestir.h"
#include "satir_izgarasi.h"
#include "fis_k.h"
#include "liste_izgarasi.h"
#include "malzeme_l.h"
#include "malzeme_listesi.h"
#include "saat.h"
#include "veri_klasoru.h"
#include "veritabani.h"
#include "veri.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;
using namespace FisSutun;

class TstMalzemeListesi : public QObject, protected GeciciVeri
{
    Q_OBJECT

    QPointer<FIS_K> m_fis;


    struct Satir
    {
        int FisNo;
        QString HesapKod, Ozellik, Miktar, Cikan;
        QVariant FCinss = QString();
        QString Unite = QString(), KimeVerildigi = QString(), Tarih = u"10.03.2026"_s;
    };
    void yaz(const QList<Satir>& satirlar)
    {
        Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
        for (const Satir& s : satirlar)
            vt.Calistir(QStringLiteral("insert into FIS (FisNo, FCins, FCinss, HesapKod, Ozellik, Miktar, Cikan, "
                                       "Birimi, BirimFiyat, KDV, Unite, KimeVerildigi, Tarih) "
                                       "values (?, 'G', ?, ?, ?, ?, ?, 'ADET', '12,5', 18, ?, ?, ?)"),
                        {s.FisNo, s.FCinss, s.HesapKod, s.Ozellik, s.Miktar, s.Cikan, s.Unite, s.KimeVerildigi,
                         s.Tarih});
    }
    static MalzemeListesi::Kosullar kosullar()
    {
        MalzemeListesi::Kosullar k;
        k.Tarih = QDate(1900, 1, 1);
        k.Tarih1 = QDate(2026, 12, 31);
        return k;
    }
    // A voucher screen with the cell the list is asked from, and the list.
    Malzeme_L* listeAc(const QVariantMap& kip, int sutun, const QString& kod = QString())
    {
        m_fis = new FIS_K({u"2026"_s, u"3"_s, u"Okul"_s, &veri()});
        if (!kip.isEmpty())
            m_fis->KipAyarla(kip);
        m_fis->show();
        Etkinlestir(m_fis);
        izgara()->setFocus();
        izgara()->HucreSec(1, sutun);
        if (!kod.isNull())
            m_fis->findChild<QComboBox*>(u"HesKod"_s)->setEditText(kod);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
        return m_fis->findChild<Malzeme_L*>();
    }
    SatirIzgarasi* izgara() const { return m_fis->findChild<SatirIzgarasi*>(u"T"_s); }
    // The voucher numbers the list gives, in its order.
    QList<int> fisler(const MalzemeListesi::Kosullar& k)
    {
        const MalzemeListesi::Komut komut = MalzemeListesi::Liste(k);
        Veritabani& vt = veri().Baglanti(Dosya::Ayniyat);
        QList<int> no;
        for (const QStringList& s : vt.Satirlar(komut.sql, komut.degerler))
            no << s.value(7).toInt();
        return no;
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        veri();
    }
    void cleanup()
    {
        delete m_fis;
        Saat::Ayarla({});
    }

    void uniteYuzdesiOlduguGibi()
    {
        yaz({{1, "150", "A", "1", "0", "", "3"}, {2, "150", "A", "1", "0", "", "3%"}, {3, "150", "A", "1", "0", "", "35"}});
        auto k = kosullar();
        k.Unite = u"3"_s;
        QCOMPARE(fisler(k), QList<int>{2});
    }

    void hareket_data()
    {
        QTest::addColumn<int>("secenek");
        QTest::addColumn<QList<int>>("beklenen");
        QTest::newRow("Tümü") << int(MalzemeListesi::Hareket::Tumu) << QList<int>{1, 2, 3, 4};
        // The entry line of 10 stays "in" although voucher 4 took all 10.
        QTest::newRow("Gelen") << int(MalzemeListesi::Hareket::Gelen) << QList<int>{1, 3};
        QTest::newRow("Çıkan") << int(MalzemeListesi::Hareket::Cikan) << QList<int>{2, 3, 4};
    }
    void hareket()
    {
        QFETCH(int, secenek);
        QFETCH(QList<int>, beklenen);
        yaz({{1, "150", "KALEM", "10", "", {}}, {2, "150", "DEFTER", "10", "10"}, {3, "150", "SİLGİ", "10", "4"},
             {4, "150", "KALEM", "0", "10"}});
        auto k = kosullar();
        k.hareket = MalzemeListesi::Hareket(secenek);
        QCOMPARE(fisler(k), beklenen);
    }

    void hasarKuyrugu_data()
    {
        QTest::addColumn<bool>("hasar");
        QTest::addColumn<bool>("option1");
        QTest::addColumn<bool>("option2");
        QTest::addColumn<QList<int>>("beklenen");
        QTest::newRow("hiçbiri") << false << false << false << QList<int>{2, 3};
        QTest::newRow("HasarCheck") << true << false << false << QList<int>{1};
        QTest::newRow("HasarCheck+Option1") << true << true << false << QList<int>{2, 4};
        QTest::newRow("Option1+Option2") << false << true << true << QList<int>{2};
        QTest::newRow("HasarCheck+Option2") << true << false << true << QList<int>{2};
    }
    void hasarKuyrugu()
    {
        QFETCH(bool, hasar);
        QFETCH(bool, option1);
        QFETCH(bool, option2);
        QFETCH(QList<int>, beklenen);
        yaz({{1, "150", "A", "1", "0", "D"}, {2, "150", "A", "1", "0", ""}, {3, "150", "A", "1", "0", QVariant()},
             {4, "150", "A", "1", "0", "X"}});
        auto k = kosullar();
        k.HasarCheck = hasar;
        k.Option1 = option1;
        k.Option2 = option2;
        QCOMPARE(fisler(k), beklenen);
    }

    void suzgeclerToplanir_data()
    {
        QTest::addColumn<QString>("hesapKod");
        QTest::addColumn<QString>("kime");
        QTest::addColumn<QString>("fisNo");
        QTest::addColumn<QDate>("baslama");
        QTest::addColumn<QList<int>>("beklenen");
        QTest::newRow("kod") << "150 01" << "" << "" << QDate(1900, 1, 1) << QList<int>{1, 2, 3};
        QTest::newRow("kod+kişi") << "150 01" << "ali" << "" << QDate(1900, 1, 1) << QList<int>{1, 3};
        QTest::newRow("kod+kişi+fiş") << "150 01" << "ALİ" << "1" << QDate(1900, 1, 1) << QList<int>{3};
        QTest::newRow("kod+tarih") << "150 01" << "" << "" << QDate(2026, 3, 1) << QList<int>{2, 3};
    }
    void suzgeclerToplanir()
    {
        QFETCH(QString, hesapKod);
        QFETCH(QString, kime);
        QFETCH(QString, fisNo);
        QFETCH(QDate, baslama);
        QFETCH(QList<int>, beklenen);
        yaz({{1, "150 01 01 001", "A", "1", "0", "", "", "Ali Can", "05.02.2026"},
             {2, "150 01 01 002", "A", "1", "0", "", "", "Veli", "05.03.2026"},
             {3, "150 01 02 001", "A", "1", "0", "", "", "Ali Can", "10.03.2026"},
             {4, "255 01 01 001", "A", "1", "0", "", "", "Ali Can", "10.03.2026"}});
        auto k = kosullar();
        k.HesapKod = hesapKod;
        k.KimeVerildigi = kime;
        k.FisNo = fisNo;
        k.Tarih = baslama;
        QCOMPARE(fisler(k), beklenen);
    }

    void siraVeYon()
    {
        yaz({{2, "150", "B", "1", "0"}, {1, "150", "C", "1", "0"}, {3, "150", "A", "1", "0"}});
        auto k = kosullar();
        k.sira = MalzemeListesi::Sira::Ozellik;
        k.artan = false;
        QCOMPARE(fisler(k), (QList<int>{1, 2, 3}));
    }

    void aciklamaToplamlari()
    {
        yaz({{1, "150", "KALEM", "10", ""}, {2, "150", "KALEM", "2.5", "1"}, {3, "150", "SİLGİ", "7", "0"}});
        QCOMPARE(MalzemeListesi::Toplamlar(veri().Ayniyat(), u"KALEM"_s),
                 (QStringList{" Gelen :", "12,5", "   Çıkan :", "1", "   Kalan :", "11,5"}));
        QCOMPARE(MalzemeListesi::Toplamlar(veri().Ayniyat(), u"YOK"_s).value(1), QString());
    }

    void fisEkranindanSecme()
    {
        yaz({{7, "150 01 01 001", "MAVİ KALEM", "10", "4"}, {8, "255 01 01 001", "MASA", "1", "0"}});
        {
            Veritabani& vt = veri().Baglanti(Dosya::Genel);
            vt.Calistir(u"insert into URUN_K (HesapKod, MalzAdi, Birimi, KDV1) values (?, ?, ?, ?)"_s,
                        {"150 01 01 001", "Kalem", "ADET", "18"});
        }
        auto* liste = listeAc({{"FCins", "C"}, {"Hangi", "C"}}, HesapKod, u"150"_s);
        QVERIFY(liste);
        QCOMPARE(liste->Hangi, u"Fis_K"_s);
        QCOMPARE(liste->HesapKod->text(), u"150"_s);
        QVERIFY(QTest::qWaitForWindowActive(liste));
        QTRY_COMPARE(liste->T->Rows(), 2);
        QCOMPARE(QApplication::focusWidget(), liste->T);
        QCOMPARE(liste->T->Row(), 1);
        QTRY_COMPARE(liste->T->TextMatrix(1, 0), u"Kalem"_s);
        // F2 prints the list as it stands.
        BellekCikti cikti;
        liste->CiktiSec(&cikti);
        QTest::keyClick(liste->T, Qt::Key_F2);
        QCOMPARE(cikti.belgeler.size(), 1);
        QStringList basilan;
        for (const auto& yazi : cikti.belgeler[0].value(0).yazilar)
            basilan << yazi.metin;
        QVERIFY2(basilan.contains(u"Malzeme Listesi  "_s) && basilan.contains(u"Kalem"_s), qPrintable(basilan.join(u'|')));
        QTest::keyClick(liste->T, Qt::Key_Return);

        QTRY_VERIFY(!m_fis->findChild<Malzeme_L*>());
        const QList<std::pair<int, QString>> beklenen{{HesapKod, "150 01 01 001"}, {MalzAdi, "Kalem"},
                                                      {Ozellik, "MAVİ KALEM"},     {Birimi, "ADET"},
                                                      {BirimFiyat, "12,5"},        {KDV, "18"}};
        for (const auto& [sutun, metin] : beklenen)
            QCOMPARE(izgara()->TextMatrix(1, sutun), metin);
        QCOMPARE(izgara()->Col(), int(Miktar));
        QCOMPARE(m_fis->findChild<QLineEdit*>(u"KalanTop1"_s)->text(), u"6"_s);
        QVERIFY(m_fis->findChild<QLineEdit*>(u"KalanTop1"_s)->isVisibleTo(m_fis));
    }

    void bosListedeCiftTiklama()
    {
        auto* liste = listeAc({}, Ozellik);
        QVERIFY(liste);
        QVERIFY(liste->Option3->isChecked());
        QVERIFY(QTest::qWaitForWindowActive(liste));
        QCOMPARE(liste->T->Rows(), 1);
        QTest::mouseDClick(liste->T->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
        QVERIFY(m_fis->findChild<Malzeme_L*>());
        QCOMPARE(izgara()->Col(), int(Ozellik));
        QVERIFY(!m_fis->findChild<QLineEdit*>(u"GelenTop1"_s)->isVisibleTo(m_fis));
    }
};

QTEST_MAIN(TstMalzemeListesi)
#include "tst_malzeme_listesi.moc"
