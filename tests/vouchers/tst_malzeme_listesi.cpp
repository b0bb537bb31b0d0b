#include "cikti.h"
#include "ekran_testi.h"
#include "fis_k.h"
#include "malzeme_l.h"
#include "malzeme_listesi.h"
#include "saat.h"
#include "satir_izgarasi.h"

#include <QComboBox>
#include <QRadioButton>
#include <QtTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace FisSutun;
using MalzemeListesi::Kosullar;

Q_DECLARE_METATYPE(Kosullar)

class TstMalzemeListesi : public QObject, protected EkranTesti<FIS_K>
{
    Q_OBJECT

    struct Satir
    {
        int FisNo;
        QString HesapKod, Ozellik, Miktar, Cikan;
        QVariant FCinss = QString();
        QString Unite = QString(), KimeVerildigi = QString(), Tarih = u"10.03.2026"_s;
    };
    void yaz(const QList<Satir>& satirlar)
    {
        for (const Satir& s : satirlar)
            veri().Ayniyat().Calistir(u"insert into FIS (FisNo, FCins, FCinss, HesapKod, Ozellik, Miktar, Cikan, "
                                      "Birimi, BirimFiyat, KDV, Unite, KimeVerildigi, Tarih) "
                                      "values (?, 'G', ?, ?, ?, ?, ?, 'ADET', '12,5', 18, ?, ?, ?)"_s,
                                      {s.FisNo, s.FCinss, s.HesapKod, s.Ozellik, s.Miktar, s.Cikan, s.Unite,
                                       s.KimeVerildigi, s.Tarih});
    }
    // The conditions of the whole date range, changed by the row.
    static Kosullar kosul(const std::function<void(Kosullar&)>& degistir = {})
    {
        Kosullar k;
        k.Tarih = QDate(1900, 1, 1);
        k.Tarih1 = QDate(2026, 12, 31);
        if (degistir)
            degistir(k);
        return k;
    }
    // A voucher screen with the cell the list is asked from, and the list.
    Malzeme_L* listeAc(const QVariantMap& kip, int sutun, const QString& kod = QString())
    {
        ac();
        if (!kip.isEmpty())
            m_ekran->KipAyarla(kip);
        izgara()->setFocus();
        izgara()->HucreSec(1, sutun);
        if (!kod.isNull())
            bul<QComboBox>(u"HesKod"_s)->setEditText(kod);
        Tus(Qt::Key_F10);
        return m_ekran->findChild<Malzeme_L*>();
    }
    SatirIzgarasi* izgara() const { return bul<SatirIzgarasi>(u"T"_s); }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
    }
    void cleanup()
    {
        delete m_ekran;
        Saat::Ayarla({});
    }

    // The lines the list gives, in its order, for one set of lines: the
    // movement, the write-off controls (the last that applies decides), the
    // filter boxes added up, the sort.
    void liste_data()
    {
        QTest::addColumn<Kosullar>("k");
        QTest::addColumn<QList<int>>("beklenen");
        using H = MalzemeListesi::Hareket;
        QTest::newRow("tümü: yazılmamış ve boş düşüm") << kosul() << QList<int>{1, 2, 3, 4};
        // The entry line of 10 stays "in" although voucher 4 took all 10.
        QTest::newRow("gelen") << kosul([](Kosullar& k) { k.hareket = H::Gelen; }) << QList<int>{1, 3};
        QTest::newRow("çıkan") << kosul([](Kosullar& k) { k.hareket = H::Cikan; }) << QList<int>{2, 3, 4};
        QTest::newRow("HasarCheck") << kosul([](Kosullar& k) { k.HasarCheck = true; }) << QList<int>{5};
        QTest::newRow("HasarCheck+Option1")
            << kosul([](Kosullar& k) { k.HasarCheck = k.Option1 = true; }) << QList<int>{1, 2, 4, 6};
        QTest::newRow("Option1+Option2") << kosul([](Kosullar& k) { k.Option1 = k.Option2 = true; })
                                         << QList<int>{1, 2, 4};
        QTest::newRow("HasarCheck+Option2") << kosul([](Kosullar& k) { k.HasarCheck = k.Option2 = true; })
                                            << QList<int>{1, 2, 4};
        // Compared with =, the % it carries is a character.
        QTest::newRow("ünite yüzdesi olduğu gibi") << kosul([](Kosullar& k) { k.Unite = u"3"_s; }) << QList<int>{2};
        QTest::newRow("kod") << kosul([](Kosullar& k) { k.HesapKod = u"150 01"_s; }) << QList<int>{1, 2, 3};
        QTest::newRow("kod+kişi") << kosul([](Kosullar& k) { k.HesapKod = u"150 01"_s, k.KimeVerildigi = u"ali"_s; })
                                  << QList<int>{1, 3};
        QTest::newRow("kod+kişi+fiş") << kosul([](Kosullar& k) {
            k.HesapKod = u"150 01"_s, k.KimeVerildigi = u"ALİ"_s, k.FisNo = u"1"_s;
        }) << QList<int>{3};
        QTest::newRow("kod+tarih") << kosul([](Kosullar& k) { k.HesapKod = u"150 01"_s, k.Tarih = {2026, 3, 1}; })
                                   << QList<int>{2, 3};
        QTest::newRow("özelliğe göre azalan") << kosul([](Kosullar& k) {
            k.sira = MalzemeListesi::Sira::Ozellik, k.artan = false;
        }) << QList<int>{3, 4, 1, 2};
    }
    void liste()
    {
        QFETCH(Kosullar, k);
        yaz({{1, "150 01 01 001", "KALEM", "10", "", "", "3", "Ali Can", "05.02.2026"},
             {2, "150 01 01 002", "DEFTER", "10", "10", "", "3%", "Veli", "05.03.2026"},
             {3, "150 01 02 001", "SİLGİ", "10", "4", QVariant(), "35", "Ali Can"},
             {4, "255 01 01 001", "MASA", "0", "10", "", "", "Ali Can"},
             {5, "150 01 01 001", "KALEM", "1", "0", "D"},
             {6, "150 01 01 001", "KALEM", "1", "0", "X"}});
        const MalzemeListesi::Komut komut = MalzemeListesi::Liste(k);
        QList<int> fisler;
        for (const QStringList& s : veri().Ayniyat().Satirlar(komut.sql, komut.degerler))
            fisler << s.value(7).toInt();
        QTEST(fisler, "beklenen");
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
        sql(u"insert into URUN_K (HesapKod, MalzAdi, Birimi, KDV1) values (?, ?, ?, ?)"_s,
            {"150 01 01 001", "Kalem", "ADET", "18"});
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
        QVERIFY2(basilan.contains(u"Malzeme Listesi  "_s) && basilan.contains(u"Kalem"_s),
                 qPrintable(basilan.join(u'|')));
        QTest::keyClick(liste->T, Qt::Key_Return);

        QTRY_VERIFY(!m_ekran->findChild<Malzeme_L*>());
        QStringList satir;
        for (int sutun : {HesapKod, MalzAdi, Ozellik, Birimi, BirimFiyat, KDV})
            satir << izgara()->TextMatrix(1, sutun);
        QCOMPARE(satir, (QStringList{"150 01 01 001", "Kalem", "MAVİ KALEM", "ADET", "12,5", "18"}));
        QCOMPARE(izgara()->Col(), int(Miktar));
        QCOMPARE(metin(u"KalanTop1"_s), u"6"_s);
        QVERIFY(bul(u"KalanTop1"_s)->isVisibleTo(m_ekran));
    }

    // From an empty description the list shows what came in of the line's
    // code.
    void aciklamaSutunundan()
    {
        ac();
        izgara()->HucreYaz(1, HesapKod, u"255"_s);
        izgara()->setFocus();
        izgara()->HucreSec(1, Ozellik);
        Tus(Qt::Key_F10);
        auto* liste = m_ekran->findChild<Malzeme_L*>();
        QVERIFY(liste);
        QVERIFY(liste->Option3->isChecked());
        QCOMPARE(liste->HesapKod->text(), u"255"_s);
        QCOMPARE(liste->Hangi, u"Fis_K"_s);
    }
};

QTEST_MAIN(TstMalzemeListesi)
#include "tst_malzeme_listesi.moc"
