#include "ekran_testi.h"
#include "sayim_cetveli_ekrani.h"

#include <QComboBox>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

// What the table's screen adds to the panel of the account tables: the one
// first-level code of HesapNo4. The figures are the logic's.
class TstSayimCetveliEkrani : public QObject, protected EkranTesti<SayimCetveli>
{
    Q_OBJECT

private slots:
    void tekAltHesap()
    {
        Yenile();
        veri().Genel().Calistir(u"Delete from HESAP_K"_s);
        for (const QString& kod : {u"150 01"_s, u"150 01 01"_s, u"255 01"_s, u"255 01 01"_s})
            veri().Genel().Calistir(u"insert into HESAP_K (HesapKod, HesapAd) values (?, 'AD')"_s, {kod});
        for (const QString& kod : {u"150 01 01 001"_s, u"255 01 01 001"_s})
            veri().Ayniyat().Calistir(u"insert into FIS (Tarih, HesapKod, Miktar) values ('05.05.2020', ?, '1')"_s,
                                      {kod});
        ac();
        m_ekran->Toplu();
        const QAbstractItemModel* liste = bul<QTreeView>(u"lstRapor"_s)->model();
        QCOMPARE(liste->rowCount(), 3);  // two classes and the closing row
        auto* kutu = bul<QComboBox>(u"HesapNo4"_s);
        QCOMPARE(kutu->count(), 2);
        kutu->setCurrentIndex(1);
        emit kutu->activated(1);
        QCOMPARE(liste->rowCount(), 2);
        QCOMPARE(liste->index(0, 1).data().toString(), u"255 01 01"_s);
        delete m_ekran;
    }
};

QTEST_MAIN(TstSayimCetveliEkrani)
#include "tst_sayim_cetveli_ekrani.moc"
