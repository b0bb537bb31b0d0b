#include "ekran_testi.h"
#include "modal_yanit.h"
#include "saat.h"
#include "sayim_cetveli_ekrani.h"
#include "tarih_secici.h"

#include <QPushButton>
#include <QTableWidget>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

// The table's screen: the dates Hangi "D" opens with, T2's click, the
// message of an account without lines. The figures are the logic's.
class TstSayimCetveliEkrani : public QObject, protected EkranTesti<SayimCetveli>
{
    Q_OBJECT

    int satirlar() const { return bul<QTreeView>(u"lstRapor"_s)->model()->rowCount(); }
    void tikla(int sutun)
    {
        auto* t2 = bul<QTableWidget>(u"T2"_s);
        QTest::mouseClick(t2->viewport(), Qt::LeftButton, {}, t2->visualItemRect(t2->item(1, sutun)).center());
    }

private slots:
    void hangiVeHesap()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        veri().Genel().Calistir(u"Delete from HESAP_K"_s);
        for (const QString& kod : {u"150 01 01"_s, u"253 01 01"_s, u"255 01 01"_s})
            veri().Genel().Calistir(u"insert into HESAP_K (HesapKod, HesapAd) values (?, 'AD')"_s, {kod});
        // A line of 2020 and one of today, the period's last day.
        for (const QString& t : {u"05.05.2020"_s, u"14.03.2026"_s})
            veri().Ayniyat().Calistir(u"insert into FIS (Tarih, HesapKod, Miktar) values (?, ?, '1')"_s,
                                      {t, t.endsWith(u"2020") ? u"150 01 01 001"_s : u"255 01 01 001"_s});
        ac();
        QCOMPARE(bul<TarihSecici>(u"Tarih"_s)->Metin(), u"01.01.2026"_s);
        m_ekran->HangiYaz(u"D"_s);
        QCOMPARE(bul<TarihSecici>(u"Tarih1"_s)->Metin(), u"14.03.2026"_s);
        QCOMPARE(satirlar(), 3);  // two classes and the closing row
        tikla(3);
        QCOMPARE(bul<QTreeView>(u"lstRapor"_s)->model()->index(0, 1).data().toString(), u"255 01 01"_s);
        QCOMPARE(satirlar(), 2);
        ModalYanit yanit(u"Tamam"_s);
        tikla(1);
        QTRY_COMPARE(yanit.Metin(), u" Kayıt Bulunamadı .. "_s);
        QCOMPARE(satirlar(), 0);
        bul<QPushButton>(u"Command16"_s)->click();
        QCOMPARE(satirlar(), 3);
        delete m_ekran;
        Saat::Ayarla({});
    }
};

QTEST_MAIN(TstSayimCetveliEkrani)
#include "tst_sayim_cetveli_ekrani.moc"
