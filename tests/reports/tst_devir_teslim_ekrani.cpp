#include "cikti.h"
#include "depo_takip.h"
#include "depo_takip_ekrani.h"
#include "devir_teslim.h"
#include "devir_teslim_ekrani.h"
#include "ekran_testi.h"
#include "modal_yanit.h"
#include "tarih_secici.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

// What the two screens add to their lists: the start held at 01.01.1900,
// "Biteni Göster", one description and the store by keys, the listed
// descriptions offered, the messages, paper by F2.
class TstDevirTeslimEkrani : public QObject, protected GeciciVeri
{
    Q_OBJECT

    // The screen on a new folder with a used-up Çay in store 1 and Un in 2.
    template <typename Ekran>
    Ekran* ac()
    {
        Yenile();
        const auto satir = [&](const QString& ozellik, const QString& miktar, const QString& cikan, int ambar) {
            veri().Ayniyat().Calistir(u"insert into FIS (Tarih, FisNo, HesapKod, Ozellik, Miktar, Cikan, AmbarNo) "
                                      "values ('04.05.2020', 1, '150 01 01 001', ?, ?, ?, ?)"_s,
                                      {ozellik, miktar, cikan, ambar});
        };
        satir(u"Çay"_s, u"3"_s, u"3"_s, 1);
        satir(u"Un"_s, u"5"_s, {}, 2);
        auto* e = new Ekran({u"2026"_s, u"3"_s, u"Okul"_s, &veri()});
        e->show();
        Etkinlestir(e);
        return e;
    }
    // The descriptions the list shows, in its cell `hucre`.
    static QString adlar(QWidget* e, int hucre)
    {
        const QAbstractItemModel* m = e->findChild<QTreeView*>(u"lstRapor"_s)->model();
        QString l;
        for (int r = 0; r < m->rowCount(); ++r)
            l += m->index(r, hucre).data().toString() + u'|';
        return l;
    }

private slots:
    void devirTeslim()
    {
        std::unique_ptr<DevirTeslim> e(ac<DevirTeslim>());
        e->Toplu();  // as the menu opens it, the working year's start overridden
        QCOMPARE(e->findChild<TarihSecici*>(u"Tarih"_s)->date(), QDate(1900, 1, 1));
        QCOMPARE(adlar(e.get(), DevirTeslimTutanagi::Ozellik), u"Un|"_s);

        // Space on "Biteni Göster" lists the used-up Çay too.
        e->findChild<QCheckBox*>(u"Check2"_s)->setFocus();
        Tus(Qt::Key_Space);
        QCOMPARE(adlar(e.get(), DevirTeslimTutanagi::Ozellik), u"Çay|Un|"_s);
        // The listed names are offered: one typed and Enter lists it alone.
        e->findChild<QComboBox*>(u"Ozellik"_s)->setFocus();
        QTest::keyClicks(QApplication::focusWidget(), u"Çay"_s);
        Tus(Qt::Key_Return);
        QCOMPARE(adlar(e.get(), DevirTeslimTutanagi::Ozellik), u"Çay|"_s);

        BellekCikti bellek;
        e->CiktiSec(&bellek);
        Tus(Qt::Key_F2);
        QCOMPARE(bellek.belgeler.size(), 1);

        // Store 2 holds no Çay: the message, an empty list.
        auto* ambar = e->findChild<QLineEdit*>(u"AmbarNo"_s);
        ambar->setFocus();
        QTest::keyClicks(ambar, u"2"_s);
        ModalYanit yanit(u"Tamam"_s);
        Tus(Qt::Key_Return);
        QCOMPARE(yanit.Metin(), u"   Kayıt Bulunamadı ...  "_s);
        QCOMPARE(adlar(e.get(), DevirTeslimTutanagi::Ozellik), QString());
    }

    // Store tracking tells when its paper has gone out.
    void depoTakip()
    {
        std::unique_ptr<DepoTakip> e(ac<DepoTakip>());
        e->Toplu();
        QCOMPARE(adlar(e.get(), DepoTakibi::Ozellik), u"Un|"_s);
        BellekCikti bellek;
        e->CiktiSec(&bellek);
        ModalYanit yanit(u"Tamam"_s);
        Tus(Qt::Key_F3);
        QCOMPARE(bellek.belgeler.size(), 1);
        QCOMPARE(yanit.Metin(), u" Yazıcıya Gönderildi. "_s);
    }
};

QTEST_MAIN(TstDevirTeslimEkrani)
#include "tst_devir_teslim_ekrani.moc"
