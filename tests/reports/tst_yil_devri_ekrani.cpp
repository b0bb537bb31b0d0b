#include "ekran_testi.h"
#include "saat.h"
#include "tarih_secici.h"
#include "yil_devri_ekrani.h"

#include <QTableWidget>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

// What the two table screens add to their logic: the opening dates, the
// main account clicked in T2, Sayma, F5.
class TstYilDevriEkrani : public QObject, protected EkranTesti<HesapCetveli>
{
    Q_OBJECT

    int satirSayisi() const { return bul<QTreeView>(u"lstRapor"_s)->model()->rowCount(); }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        Veritabani& g = veri().Genel();
        g.Calistir(u"delete from HESAP_K"_s);
        for (const QString& kod : {u"150 01 01"_s, u"255 01 01"_s, u"150 01"_s, u"255 01"_s})
            g.Calistir(u"insert into HESAP_K (HesapKod, HesapAd) values (?, 'Ad')"_s, {kod});
        for (const QString& kod : {u"150 01 01 001"_s, u"255 01 01 001"_s})
            veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, Satir, HesapKod, Birimi, Miktar, BirimFiyat) "
                                      "values ('02.01.2025', 1, 1, ?, 'ADET', '2', '5')"_s,
                                      {kod});
        ac();
    }
    void cleanup()
    {
        delete m_ekran;
        Saat::Ayarla({});
    }

    void hesapCetveli()
    {
        // From the first record (the picker's blank) to today in the working year.
        QCOMPARE(bul<TarihSecici>(u"Tarih"_s)->date(), QDate(1900, 1, 1));
        QCOMPARE(bul<TarihSecici>(u"Tarih1"_s)->Metin(), u"14.03.2026"_s);
        m_ekran->Toplu();
        QCOMPARE(metin(u"Sayma"_s), u"2"_s);
        QCOMPARE(satirSayisi(), 3);
        auto* t2 = bul<QTableWidget>(u"T2"_s);
        QCOMPARE(t2->item(1, 0)->text(), u"İlkmadde-Malzeme"_s);
        emit t2->cellClicked(1, 3);
        QCOMPARE(metin(u"Sayma"_s), u"1"_s);
        QCOMPARE(m_ekran->Tablo().satirlar[0].hucreler.value(1), u"255 01 01"_s);
        // F5 lists afresh, the account kept: a new unit adds its row.
        veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, Satir, HesapKod, Birimi, Miktar) "
                                  "values ('03.01.2026', 2, 1, '255 01 01 002', 'TAKIM', '1')"_s);
        QTest::keyClick(m_ekran, Qt::Key_F5);
        QCOMPARE(metin(u"Sayma"_s), u"2"_s);
        QCOMPARE(satirSayisi(), 3);
    }

    // The working year of the screen, 2026, is the report year: the 2025
    // lines are carried over.
    void kesinHesap()
    {
        KesinHesap k({u"2026"_s, u"3"_s, u"Okul"_s, &veri()});
        QCOMPARE(k.windowTitle(), u"Kesin Hesap İcmal Cetveli TMY-17"_s);
        k.Toplu();
        QCOMPARE(k.Tablo().satirlar.size(), 3);
        QCOMPARE(k.Tablo().satirlar[0].hucreler.value(4), u"2,00"_s);
    }
};

QTEST_MAIN(TstYilDevriEkrani)
#include "tst_yil_devri_ekrani.moc"
