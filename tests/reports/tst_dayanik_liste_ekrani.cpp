#include "cikti.h"
#include "dayanak2.h"
#include "dayanik_liste_ekrani.h"
#include "ekran_testi.h"
#include "modal_yanit.h"
#include "saat.h"
#include "tarih_secici.h"

#include <QComboBox>
#include <QLabel>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

// The unit list screens as the store officer uses them: the walk's
// question, one unit by name, F2, and the unit chosen on Dayanak2. The
// figures are the logic's.
class TstDayanikListeEkrani : public QObject, protected EkranTesti<DayanikListe>
{
    Q_OBJECT

    QTreeView* liste(QWidget* ekran) const { return ekran->findChild<QTreeView*>(u"lstRapor"_s); }
    QString sinif() const { return bul<QLabel>(u"FCins2"_s)->text(); }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        veri().Genel().Calistir(u"insert into Unite_K (UniteKod, UniteAd) values ('4', 'Müdürlük'), ('3', 'Fen')"_s);
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi) values ('255 01 01 001', 'MASA')"_s);
        for (const char* unite : {"3", "4"})
            veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, FCins, Satir, HesapKod, Unite, Miktar, SicilNo) "
                                      "values ('04.05.2020', 1, 'G', 1, '255 01 01 001', ?, '2', 'S-1')"_s,
                                      {QString::fromLatin1(unite)});
        ac();
    }
    void cleanup()
    {
        delete m_ekran;
        Saat::Ayarla({});
    }

    // The durable list from the first records on; No keeps the first unit.
    void hangiVeSoru()
    {
        ModalYanit hayir(u"Hayır"_s);
        m_ekran->HangiYaz(u"D"_s);
        QCOMPARE(hayir.Metin(), u"YENi Birim-Ünite Dökümü devam edecek mi ?"_s);
        QCOMPARE(bul<TarihSecici>(u"Tarih"_s)->Metin(), QString());
        QCOMPARE(bul<TarihSecici>(u"Tarih1"_s)->Metin(), u"14.03.2026"_s);
        QCOMPARE(sinif(), u"Müdürlük"_s);
        QCOMPARE(liste(m_ekran)->model()->rowCount(), 2);
        QCOMPARE(m_ekran->windowTitle(), u"Dayanıklı Taşınır Liste"_s);

        // F2 prints the list as it stands.
        BellekCikti bellek;
        m_ekran->CiktiSec(&bellek);
        Etkinlestir(m_ekran);
        Tus(Qt::Key_F2);
        QCOMPARE(bellek.belgeler.size(), 1);
        const QList<SayfaYazisi>& yazilar = bellek.belgeler[0][0].yazilar;
        QVERIFY(std::any_of(yazilar.begin(), yazilar.end(), [](const SayfaYazisi& y) { return y.metin == u"S-1"_s; }));
    }

    // A unit asked for by name is listed without a question after it.
    void tekBirimSorusuz()
    {
        bul<QComboBox>(u"UniteAd1"_s)->setEditText(u"Fen"_s);
        ModalYanit yanit(u"Tamam"_s);
        m_ekran->HangiYaz(u"D"_s);
        QVERIFY(!yanit.Goruldu());
        QCOMPARE(sinif(), u"Fen"_s);
        QCOMPARE(liste(m_ekran)->model()->rowCount(), 2);
    }

    void dayanak2BirimSecilince()
    {
        Dayanak2 d({u"2026"_s, u"3"_s, u"Okul"_s, &veri()});
        d.show();
        auto* kutu = d.findChild<QComboBox*>(u"UniteAd1"_s);
        QCOMPARE(kutu->count(), 2);
        kutu->setCurrentIndex(1);
        emit kutu->activated(1);
        QCOMPARE(d.findChild<QLabel*>(u"UniteNo"_s)->text(), u"3"_s);
        QCOMPARE(liste(&d)->model()->rowCount(), 1);
    }
};

QTEST_MAIN(TstDayanikListeEkrani)
#include "tst_dayanik_liste_ekrani.moc"
