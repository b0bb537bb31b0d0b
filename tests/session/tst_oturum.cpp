#include "klavye.h"
#include "menu.h"
#include "modal_yanit.h"
#include "oturum.h"
#include "parola.h"
#include "saat.h"
#include "tek_deger.h"
#include "veri_klasoru.h"
#include "veritabani.h"
#include "veri.h"
#include "veri_acilisi.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

class TstOturum : public QObject
{
    Q_OBJECT

    static int fisSayisi(const QString& yol)
    {
        Veritabani vt(yol);
        return int(ToplamAl(vt, QStringLiteral("FIS_B"), QStringLiteral("1")));
    }

    static void fisEkle(Veri& veri, int no)
    {
        veri.Ayniyat().Calistir(QStringLiteral("insert into FIS_B (FisNo, FCins, Tarih) values (?, 'G', '14.03.2026')"), {no});
    }

private slots:
    void init() { Saat::Ayarla(QDate(2026, 3, 14)); }
    void cleanup() { Saat::Ayarla({}); }

    void parolaAyarlardanGelir()
    {
        QTemporaryDir tmp;
        QCOMPARE(Oturum::ParolaYazimlari(tmp.path()), (QStringList{QStringLiteral("Z7"), QStringLiteral("z7")}));
        QSettings ayar(tmp.filePath(QStringLiteral("ayarlar.ini")), QSettings::IniFormat);
        ayar.setValue(QStringLiteral("Giris/Parola"), QStringLiteral("iz"));
        ayar.sync();
        QCOMPARE(Oturum::ParolaYazimlari(tmp.path()), (QStringList{QStringLiteral("İZ"), QStringLiteral("iz")}));
    }

    void parolaSonHarftaGirer_data()
    {
        QTest::addColumn<QString>("yazilan");
        QTest::addColumn<bool>("girdi");
        QTest::newRow("büyük") << "İZ" << true;
        QTest::newRow("küçük") << "iz" << true;
        QTest::newRow("karışık") << "İz" << false;
        QTest::newRow("yanlış") << "ix" << false;
        QTest::newRow("eksik") << "i" << false;
    }

    void parolaSonHarftaGirer()
    {
        QFETCH(QString, yazilan);
        QFETCH(bool, girdi);
        Parola p({QStringLiteral("İZ"), QStringLiteral("iz")});
        p.show();
        QVERIFY(QTest::qWaitForWindowExposed(&p));
        QCOMPARE(QApplication::focusWidget(), p.ParolaKutusu);
        QSignalSpy kabul(&p, &QDialog::accepted);
        for (int i = 0; i < yazilan.size(); ++i) {
            QCOMPARE(kabul.count(), 0);
            TurkceYaz(p.ParolaKutusu, yazilan.mid(i, 1));
        }
        QCOMPARE(kabul.count(), girdi ? 1 : 0);
        QCOMPARE(p.result(), girdi ? int(QDialog::Accepted) : int(QDialog::Rejected));
    }

    void yanlisParolaTamamdaSoylenir()
    {
        Parola p({QStringLiteral("Z7"), QStringLiteral("z7")});
        p.show();
        QVERIFY(QTest::qWaitForWindowExposed(&p));
        QTest::keyClicks(p.Ad1, QStringLiteral("Ahmet"));
        p.Ad1->setFocus();
        QTest::keyClick(p.Ad1, Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), p.ParolaKutusu);
        QTest::keyClicks(p.ParolaKutusu, QStringLiteral("Z8"));
        ModalYanit yanit(QStringLiteral("Tamam"));
        QTest::mouseClick(p.c1, Qt::LeftButton);
        QVERIFY(yanit.Goruldu());
        QCOMPARE(yanit.Metin(), QStringLiteral("Yanlış Kullanıcı Adı veya Parola."));
        QVERIFY(p.isVisible());
        QSignalSpy red(&p, &QDialog::rejected);
        QTest::mouseClick(p.c2, Qt::LeftButton);
        QCOMPARE(red.count(), 1);
    }

    void aylikKopyaAyinKopyasiniYeniler()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        fisEkle(veri, 1);
        const QString kopya = tmp.filePath(QStringLiteral("AYNIYAT03.MDB"));
        QCOMPARE(Oturum::AylikKopya(tmp.path()), kopya);
        QCOMPARE(fisSayisi(kopya), 1);

        // A second login in the same month replaces the copy, whatever the
        // case of its name.
        QVERIFY(QFile::rename(kopya, tmp.filePath(QStringLiteral("ayniyat03.mdb"))));
        fisEkle(veri, 2);
        Oturum::AylikKopya(tmp.path());
        const QStringList kopyalar =
            QDir(tmp.path()).entryList({QStringLiteral("AYNIYAT0*")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
        QCOMPARE(kopyalar, QStringList{QStringLiteral("ayniyat03.mdb")});
        QCOMPARE(fisSayisi(tmp.filePath(QStringLiteral("ayniyat03.mdb"))), 2);

        // Another month, another copy; the live file is untouched.
        Saat::Ayarla(QDate(2026, 11, 1));
        Oturum::AylikKopya(tmp.path());
        QCOMPARE(fisSayisi(tmp.filePath(QStringLiteral("AYNIYAT11.MDB"))), 2);
        QCOMPARE(fisSayisi(tmp.filePath(QStringLiteral("AYNIYAT.MDB"))), 2);
    }

    void aylikKopyaOlmazsaEskisiKalir()
    {
        QTemporaryDir tmp;
        QVERIFY_THROWS_EXCEPTION(VeriHatasi, Oturum::AylikKopya(tmp.path()));
        QVERIFY(!QFile::exists(tmp.filePath(QStringLiteral("AYNIYAT03.MDB"))));

        Veri veri(tmp.path());
        fisEkle(veri, 1);
        Oturum::AylikKopya(tmp.path());
        // A live file that is not ours cannot be copied: the old copy stays.
        const QString canli = tmp.filePath(QStringLiteral("AYNIYAT.MDB"));
        QVERIFY(QFile::remove(canli));
        QFile bozuk(canli);
        QVERIFY(bozuk.open(QIODevice::WriteOnly));
        bozuk.write("bozuk");
        bozuk.close();
        try {
            Oturum::AylikKopya(tmp.path());
            QFAIL("bozuk dosyanın kopyası yazıldı");
        } catch (const VeriHatasi& h) {
            QVERIFY2(h.Mesaj().startsWith(QStringLiteral("Aylık güvenlik kopyası yazılamadı; önceki kopya duruyor.")),
                     qPrintable(h.Mesaj()));
        }
        QCOMPARE(fisSayisi(tmp.filePath(QStringLiteral("AYNIYAT03.MDB"))), 1);
        QVERIFY(!QFile::exists(tmp.filePath(QStringLiteral("AYNIYAT03.MDB.yeni"))));
    }

    // The windowed run asks before making a missing file in a folder that
    // holds data, and then writes no monthly copy from it.
    void eksikDosyaSorulur()
    {
        QTemporaryDir tmp;
        { Veri veri(tmp.path()); }
        QVERIFY(QFile::remove(tmp.filePath(QStringLiteral("AYNIYAT.MDB"))));
        {
            ModalYanit hayir(QStringLiteral("Hayır"));
            QVERIFY(!VeriAc(tmp.path()).veri);
            QVERIFY(hayir.Metin().contains(QStringLiteral("AYNIYAT.MDB bulunamadı")));
        }
        QVERIFY(!QFile::exists(tmp.filePath(QStringLiteral("AYNIYAT.MDB"))));
        ModalYanit evet(QStringLiteral("Evet"));
        const AcilanVeri acilan = VeriAc(tmp.path());
        QVERIFY(evet.Goruldu());
        QVERIFY(acilan.veri);
        QVERIFY(!acilan.kopyaYazilabilir);
        QVERIFY(VeriAc(tmp.path()).kopyaYazilabilir);
    }

    void menuAylikKopyayiArkadaYazar()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        fisEkle(veri, 1);
        Menu menu(veri);
        QSignalSpy bitti(&menu, &Menu::AylikKopyaBitti);
        menu.AylikKopyaYaz();
        QVERIFY(bitti.wait());
        QCOMPARE(menu.statusBar()->currentMessage(), QStringLiteral("Aylık güvenlik kopyası yazıldı: AYNIYAT03.MDB"));
        QCOMPARE(fisSayisi(tmp.filePath(QStringLiteral("AYNIYAT03.MDB"))), 1);

        // A copy that cannot be written is said, and the old one stays.
        QVERIFY(QDir(tmp.path()).mkdir(QStringLiteral("AYNIYAT03.MDB.yeni")));
        QFile(tmp.filePath(QStringLiteral("AYNIYAT03.MDB.yeni/x"))).open(QIODevice::WriteOnly);
        ModalYanit tamam(QStringLiteral("OK"));
        menu.AylikKopyaYaz();
        QVERIFY(bitti.wait());
        QVERIFY(tamam.Goruldu());
        QCOMPARE(menu.statusBar()->currentMessage(), QStringLiteral("Aylık güvenlik kopyası yazılamadı."));
        QCOMPARE(fisSayisi(tmp.filePath(QStringLiteral("AYNIYAT03.MDB"))), 1);
    }

    void menuSabittenOkur()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        {
            Veritabani& vt = veri.Baglanti(Dosya::Genel);
            vt.Calistir(QStringLiteral("update Sabit set KurumAdi = ?, CalisYil = 2025, CalisAy = 11"),
                        {QStringLiteral("Yeşiltepe Anadolu Lisesi")});
        }
        Menu menu(veri);
        QCOMPARE(menu.windowTitle(), QStringLiteral("Yeşiltepe Anadolu Lisesi - Taşınır Mal Yönetimi"));
        QCOMPARE(menu.Baslik->text(), QStringLiteral("Yeşiltepe Anadolu Lisesi"));
        QCOMPARE(menu.CalisYil->text(), QStringLiteral("2025"));
        QCOMPARE(menu.CalisAy->text(), QStringLiteral("11"));

        // Without the row the menu opens empty, without a word.
        {
            Veritabani& vt = veri.Baglanti(Dosya::Genel);
            vt.Calistir(QStringLiteral("delete from Sabit"));
        }
        Menu bos(veri);
        QCOMPARE(bos.windowTitle(), QStringLiteral(" - Taşınır Mal Yönetimi"));
        QVERIFY(bos.CalisYil->text().isEmpty());
        QVERIFY(bos.Baslik->text().isEmpty());
    }

    void menuGirisleriSiraylaVeHazirOlmayanlarKapali()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Menu menu(veri);
        QStringList ust;
        for (QAction* a : menu.menuBar()->actions())
            ust << a->text();
        QCOMPARE(ust, (QStringList{QStringLiteral("Taşınır Fiş"), QStringLiteral("Malzeme Sınıf"),
                                   QStringLiteral("Cetvel-Liste"), QStringLiteral("Defterler"),
                                   QStringLiteral("Cari Hesap"), QStringLiteral("Genel"), QStringLiteral("Klavuz"),
                                   QStringLiteral("SabitBilgi"), QStringLiteral("Yedekle"),
                                   QStringLiteral("Hakkında"), QStringLiteral("Çıkış")}));
        QVERIFY(!menu.Giris(QStringLiteral("FIS")) && !menu.Giris(QStringLiteral("CYC")));

        QPushButton* sabit = menu.Dugme(QStringLiteral("Command14"));
        QVERIFY(!sabit->isEnabled());
        QCOMPARE(sabit->toolTip(), QStringLiteral("Bu bölüm henüz hazır değil."));
        QVERIFY(!menu.Giris(QStringLiteral("SB"))->isEnabled());
        QVERIFY(menu.Giris(QStringLiteral("m68"))->isEnabled());

        QList<QVariantMap> kipler;
        menu.EkranTanimla(QStringLiteral("Sabit"), [&](const CalismaBaglami&, const QVariantMap& kip) {
            kipler << kip;
        });
        QVERIFY(sabit->isEnabled());
        QCOMPARE(sabit->toolTip(), QStringLiteral("Çalışma Ay-Yıl, Yetkililer, Kurum Bilgiler."));
        QVERIFY(menu.Giris(QStringLiteral("SB"))->isEnabled());
        QVERIFY(menu.Giris(QStringLiteral("SB2"))->isEnabled());
        menu.Giris(QStringLiteral("SB2"))->trigger();
        QCOMPARE(kipler.size(), 1);

        // Hovering a button puts its hint on the strip.
        QEvent uzerinde(QEvent::Enter);
        QApplication::sendEvent(menu.Dugme(QStringLiteral("cmd2")), &uzerinde);
        QCOMPARE(menu.Picture2->text(), QStringLiteral("Tek Düzen Hesap Planı İzleme-Değiştirme."));
    }

    void girisKipDegerleriniYazar()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Menu menu(veri);
        QList<QPair<CalismaBaglami, QVariantMap>> acilanlar;
        menu.EkranTanimla(QStringLiteral("FIS_K"), [&](const CalismaBaglami& b, const QVariantMap& kip) {
            acilanlar.append({b, kip});
        });
        menu.CalisYil->setText(QStringLiteral("2024"));
        menu.CalisAy->setText(QStringLiteral("7"));
        QTest::mouseClick(menu.Dugme(QStringLiteral("Command13")), Qt::LeftButton);
        QTest::mouseClick(menu.Dugme(QStringLiteral("CmdCikis")), Qt::LeftButton);
        menu.Giris(QStringLiteral("TF2"))->trigger();
        QCOMPARE(acilanlar.size(), 3);
        // A year typed on the menu reaches the screens opened afterwards.
        QCOMPARE(acilanlar[0].first.CalisYil, QStringLiteral("2024"));
        QCOMPARE(acilanlar[0].first.CalisAy, QStringLiteral("7"));
        QCOMPARE(acilanlar[0].second.value(QStringLiteral("FCins")).toString(), QStringLiteral("G"));
        QCOMPARE(acilanlar[0].second.value(QStringLiteral("Hangi")).toString(), QStringLiteral("G"));
        QCOMPARE(acilanlar[1].second.value(QStringLiteral("FCins")).toString(), QStringLiteral("C"));
        QVERIFY(acilanlar[1].second.value(QStringLiteral("CikisGizle")).toBool());
        // The last kind stays: TF2 writes ilk1 alone.
        QCOMPARE(acilanlar[2].second, (QVariantMap{{QStringLiteral("ilk1"), QStringLiteral("1")}}));
    }

    void escCikisDugmesineEnterCikar()
    {
        QTemporaryDir tmp;
        Veri veri(tmp.path());
        Menu menu(veri);
        menu.show();
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        menu.CalisYil->setFocus();
        QSignalSpy cikis(&menu, &Menu::Cikis);
        QTest::keyClick(menu.CalisYil, Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), menu.Cd8);
        QTest::keyClick(menu.Cd8, Qt::Key_Return);
        QCOMPARE(cikis.count(), 1);
        menu.Giris(QStringLiteral("Ck"))->trigger();
        QCOMPARE(cikis.count(), 2);

        // Keys that once opened missing forms say so and the menu stays.
        ModalYanit yanit(QStringLiteral("OK"));
        QTest::keyClick(menu.Cd8, Qt::Key_Down);
        QVERIFY(yanit.Goruldu());
        QCOMPARE(yanit.Metin(), QStringLiteral("Bu tuşa bağlı bir ekran bulunmuyor."));
        QVERIFY(menu.isVisible());
    }
};

QTEST_MAIN(TstOturum)
#include "tst_oturum.moc"
