#include "ekranlar.h"
#include "dusum.h"
#include "fis_k.h"
#include "menu.h"
#include "saat.h"
#include "sabit.h"
#include "satir_izgarasi.h"
#include "sinif_tani.h"
#include "veritabani.h"
#include "veri_klasoru.h"
#include "veri.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

// The menu as the program wires it.
class TstEkranlar : public QObject
{
    Q_OBJECT

    template <typename Form>
    static Form* acik()
    {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* f = qobject_cast<Form*>(w); f && f->isVisible())
                return f;
        return nullptr;
    }

    static Sabit* acikSabit()
    {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* s = qobject_cast<Sabit*>(w); s && s->isVisible())
                return s;
        return nullptr;
    }

private slots:
    void init() { Saat::Ayarla(QDate(2026, 3, 14)); }
    void cleanup()
    {
        Saat::Ayarla({});
        for (QWidget* w : QApplication::topLevelWidgets())
            w->close();
    }

    void sabitKaydiMenununYiliniHemenDegistirir()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Menu menu(veri);
        EkranlariTanimla(menu);
        menu.show();
        QCOMPARE(menu.CalisYil->text(), QStringLiteral("2026"));

        // A screen opened before the change keeps the year it was given.
        QList<CalismaBaglami> fisler;
        menu.EkranTanimla(QStringLiteral("FIS_K"),
                          [&](const CalismaBaglami& b, const QVariantMap&) { fisler << b; });
        QTest::mouseClick(menu.Dugme(QStringLiteral("Command13")), Qt::LeftButton);

        QPushButton* sabitDugmesi = menu.Dugme(QStringLiteral("Command14"));
        QVERIFY(sabitDugmesi->isEnabled());
        QTest::mouseClick(sabitDugmesi, Qt::LeftButton);
        Sabit* sabit = acikSabit();
        QVERIFY(sabit);
        QVERIFY(QTest::qWaitForWindowExposed(sabit));
        auto* yil = sabit->findChild<QLineEdit*>(QStringLiteral("CalisYil"));
        auto* ay = sabit->findChild<QLineEdit*>(QStringLiteral("CalisAy"));
        yil->setFocus();
        yil->selectAll();
        QTest::keyClicks(yil, QStringLiteral("2027"));
        ay->setFocus();
        ay->selectAll();
        QTest::keyClicks(ay, QStringLiteral("2"));
        QTest::keyClick(ay, Qt::Key_F1);

        QCOMPARE(menu.CalisYil->text(), QStringLiteral("2027"));
        QCOMPARE(menu.CalisAy->text(), QStringLiteral("2"));
        QCOMPARE(fisler.at(0).CalisYil, QStringLiteral("2026"));
        QTest::mouseClick(menu.Dugme(QStringLiteral("Command13")), Qt::LeftButton);
        QCOMPARE(fisler.at(1).CalisYil, QStringLiteral("2027"));

        // The form exists once: the menu bar entry brings the same one up.
        menu.Giris(QStringLiteral("SB"))->trigger();
        QCOMPARE(acikSabit(), sabit);
        QTest::keyClick(yil, Qt::Key_Escape);
        QVERIFY(!acikSabit());
    }

    void fisEkraniMenuKipleriyleAcilir()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Menu menu(veri);
        EkranlariTanimla(menu);
        menu.show();

        QTest::mouseClick(menu.Dugme(QStringLiteral("Command13")), Qt::LeftButton);
        FIS_K* fis = acik<FIS_K>();
        QVERIFY(fis);
        QVERIFY(QTest::qWaitForWindowExposed(fis));
        QCOMPARE(fis->findChild<QLineEdit*>(QStringLiteral("FisNo"))->text(), QStringLiteral("1"));
        auto* kabul = fis->findChild<QLineEdit*>(QStringLiteral("KabulSayi"));
        QVERIFY(kabul->isVisible());

        // The issue button turns the same form into an issue voucher; its
        // hidden controls stay hidden, and TF2 keeps the kind it had.
        QTest::mouseClick(menu.Dugme(QStringLiteral("CmdCikis")), Qt::LeftButton);
        QCOMPARE(acik<FIS_K>(), fis);
        QVERIFY(!kabul->isVisible());
        QCOMPARE(fis->findChild<QLabel*>(QStringLiteral("Label2"))->text(), QStringLiteral("Ambardan Çıkış"));
        menu.Giris(QStringLiteral("TF2"))->trigger();
        QVERIFY(!kabul->isVisible());

        // A class defined on the class screen can be chosen once it closes,
        // on the voucher and on the write-off.
        QTest::mouseClick(menu.Dugme(QStringLiteral("Command1")), Qt::LeftButton);
        Dusum* dusum = acik<Dusum>();
        QVERIFY(dusum);
        dusum->findChild<SatirIzgarasi*>(QStringLiteral("T"))->HucreSec(1, DusumSutun::HesapKod);
        auto* dusumKodu = dusum->findChild<QComboBox*>(QStringLiteral("HesKod"));
        fis->findChild<SatirIzgarasi*>(QStringLiteral("T"))->HucreSec(1, FisSutun::HesapKod);
        auto* hesKod = fis->findChild<QComboBox*>(QStringLiteral("HesKod"));
        const int once = hesKod->count();
        QCOMPARE(dusumKodu->count(), once);
        {
            Veritabani& vt = veri.Baglanti(Dosya::Genel);
            vt.Calistir(QStringLiteral("insert into URUN_K (HesapKod, MalzAdi) values ('150 01 01 001', 'Kağıt')"));
        }
        QTest::mouseClick(menu.Dugme(QStringLiteral("Command5")), Qt::LeftButton);
        QWidget* sinif = acik<SinifTani>();
        QVERIFY(sinif);
        sinif->close();
        QTRY_COMPARE(hesKod->count(), once + 1);
        QCOMPARE(dusumKodu->count(), once + 1);
    }
};

QTEST_MAIN(TstEkranlar)
#include "tst_ekranlar.moc"
