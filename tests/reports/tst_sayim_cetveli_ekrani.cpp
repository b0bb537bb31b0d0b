#include "ekran_testi.h"
#include "modal_yanit.h"
#include "saat.h"
#include "sayim_cetveli_ekrani.h"
#include "tarih_secici.h"
#include "yil_devri.h"

#include <QPushButton>
#include <QTableWidget>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

// The table's screen: what the menu's Hangi opens, T2's click, the empty
// account's message. The figures are the logic's.
class TstSayimCetveliEkrani : public QObject, protected EkranTesti<SayimCetveli>
{
    Q_OBJECT

    QStringList kodlar() const
    {
        const QAbstractItemModel* m = bul<QTreeView>(u"lstRapor"_s)->model();
        QStringList l;
        for (int r = 0; r < m->rowCount(); ++r)
            l << m->index(r, YilDevri::Kod).data().toString();
        return l;
    }
    void tikla(int sutun)
    {
        auto* t2 = bul<QTableWidget>(u"T2"_s);
        QTest::mouseClick(t2->viewport(), Qt::LeftButton, {}, t2->visualItemRect(t2->item(1, sutun)).center());
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        veri().Genel().Calistir(u"Delete from HESAP_K"_s);
        for (const QString& kod : {u"150 01 01"_s, u"253 01 01"_s, u"255 01 01"_s})
            veri().Genel().Calistir(u"insert into HESAP_K (HesapKod, HesapAd) values (?, 'AD')"_s, {kod});
        for (const auto& [tarih, kod] : {std::pair(u"05.05.2020"_s, u"150 01 01 001"_s),
                                         std::pair(u"14.03.2026"_s, u"255 01 01 001"_s)})
            veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, Satir, HesapKod, Miktar, BirimFiyat) "
                                      "values (?, 1, 1, ?, '1', '1')"_s,
                                      {tarih, kod});
        ac();
    }
    void cleanup()
    {
        delete m_ekran;
        Saat::Ayarla({});
    }

    // "D" runs from the first record to today in the working year; a click
    // on an account lists it alone, "Yeniden Liste" all again.
    void hangiVeHesap()
    {
        QCOMPARE(bul<TarihSecici>(u"Tarih"_s)->Metin(), u"01.01.2026"_s);
        m_ekran->HangiYaz(u"D"_s);
        QCOMPARE(bul<TarihSecici>(u"Tarih1"_s)->Metin(), u"14.03.2026"_s);
        QCOMPARE(kodlar(), (QStringList{u"150 01 01"_s, u"255 01 01"_s, {}}));
        tikla(3);
        QCOMPARE(kodlar(), (QStringList{u"255 01 01"_s, {}}));
        bul<QPushButton>(u"Command16"_s)->click();
        QCOMPARE(kodlar().size(), 3);
    }

    // An account whose classes have no lines says so and leaves the list
    // empty.
    void bosHesap()
    {
        m_ekran->HangiYaz(u"D"_s);
        ModalYanit yanit(u"Tamam"_s);
        tikla(1);
        QTRY_VERIFY(yanit.Goruldu());
        QCOMPARE(yanit.Metin(), u" Kayıt Bulunamadı .. "_s);
        QVERIFY(kodlar().isEmpty());
    }
};

QTEST_MAIN(TstSayimCetveliEkrani)
#include "tst_sayim_cetveli_ekrani.moc"
