#include "cikti.h"
#include "ekran_testi.h"
#include "modal_yanit.h"
#include "saat.h"
#include "sayim_tutanak.h"
#include "sayim_tutanak_ekrani.h"

#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

// What the screen adds to the count minutes: the whole list at the menu's
// "D", F5 for the last class alone, F2 to paper, a message when no class
// is found.
class TstSayimTutanakEkrani : public QObject, protected EkranTesti<SayimTutanak>
{
    Q_OBJECT

    // The list's class codes, the closing row's empty one last.
    QString kodlar() const
    {
        const QAbstractItemModel* m = bul<QTreeView>(u"lstRapor"_s)->model();
        QString l;
        for (int r = 0; r < m->rowCount(); ++r)
            l += m->index(r, SayimTutanagi::HesapKod).data().toString() + u'|';
        return l;
    }

private slots:
    void tusVeMesaj()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        for (const QString& kod : {u"150 01 01 001"_s, u"255 01 01 001"_s}) {
            veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi) values (?, 'AD')"_s, {kod});
            veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, HesapKod, Miktar) values ('04.05.2020', 1, ?, '3')"_s,
                                      {kod});
        }
        ac();
        m_ekran->HangiYaz(u"D"_s);  // from 01.01.1900: the lines of 2020 count
        QCOMPARE(kodlar(), u"150 01 01 001|255 01 01 001||"_s);
        Tus(Qt::Key_F5);
        QCOMPARE(kodlar(), u"255 01 01 001||"_s);
        BellekCikti bellek;
        m_ekran->CiktiSec(&bellek);
        Tus(Qt::Key_F2);
        QCOMPARE(bellek.belgeler.size(), 1);

        veri().Genel().Calistir(u"delete from URUN_K"_s);
        ModalYanit yanit(u"Tamam"_s);
        m_ekran->HangiYaz(u"D"_s);
        QCOMPARE(yanit.Metin(), u"  Malzeme Kaydı Bulunamadı .. "_s);
        QCOMPARE(kodlar(), QString());
        delete m_ekran;
        Saat::Ayarla({});
    }
};

QTEST_MAIN(TstSayimTutanakEkrani)
#include "tst_sayim_tutanak_ekrani.moc"
