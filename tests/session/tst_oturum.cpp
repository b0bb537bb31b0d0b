#include "gecici_veri.h"
#include "hata_metni.h"
#include "klavye.h"
#include "menu.h"
#include "modal_yanit.h"
#include "oturum.h"
#include "parola.h"
#include "saat.h"
#include "veri_acilisi.h"
#include "veri.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QtTest>

using namespace Qt::StringLiterals;

class TstOturum : public QObject, protected GeciciVeri
{
    Q_OBJECT

    static int fisSayisi(const QString& yol)
    {
        return Veritabani(yol).Satirlar(u"select count(*) from FIS_B"_s).value(0).value(0).toInt();
    }
    void fisEkle(int no)
    {
        veri().Ayniyat().Calistir(u"insert into FIS_B (FisNo, FCins, Tarih) values (?, 'G', '14.03.2026')"_s, {no});
    }
    QString dosya(const QString& ad) const { return QDir(klasor()).filePath(ad); }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
    }
    void cleanup() { Saat::Ayarla({}); }

    void parolaAyarlardanGelir()
    {
        QCOMPARE(Oturum::ParolaYazimlari(klasor()), (QStringList{u"Z7"_s, u"z7"_s}));
        QSettings ayar(dosya(u"ayarlar.ini"_s), QSettings::IniFormat);
        ayar.setValue(u"Giris/Parola"_s, u"iz"_s);
        ayar.sync();
        QCOMPARE(Oturum::ParolaYazimlari(klasor()), (QStringList{u"İZ"_s, u"iz"_s}));
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
        Parola p({u"İZ"_s, u"iz"_s});
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
        Parola p({u"Z7"_s, u"z7"_s});
        p.show();
        QVERIFY(QTest::qWaitForWindowExposed(&p));
        QTest::keyClicks(p.Ad1, u"Ahmet"_s);
        p.Ad1->setFocus();
        QTest::keyClick(p.Ad1, Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), p.ParolaKutusu);
        QTest::keyClicks(p.ParolaKutusu, u"Z8"_s);
        ModalYanit yanit(u"Tamam"_s);
        QTest::mouseClick(p.c1, Qt::LeftButton);
        QCOMPARE(yanit.Metin(), u"Yanlış Kullanıcı Adı veya Parola."_s);
        QVERIFY(p.isVisible());
        QSignalSpy red(&p, &QDialog::rejected);
        QTest::mouseClick(p.c2, Qt::LeftButton);
        QCOMPARE(red.count(), 1);
    }

    // One copy a month, replaced by the next login of the month whatever the
    // case of its name; the live file is untouched.
    void aylikKopyaAyinKopyasiniYeniler()
    {
        fisEkle(1);
        const QString kopya = dosya(u"AYNIYAT03.MDB"_s);
        QCOMPARE(Oturum::AylikKopya(klasor()), kopya);
        QCOMPARE(fisSayisi(kopya), 1);

        QVERIFY(QFile::rename(kopya, dosya(u"ayniyat03.mdb"_s)));
        fisEkle(2);
        Oturum::AylikKopya(klasor());
        QCOMPARE(QDir(klasor()).entryList({u"AYNIYAT0*"_s}, QDir::Files, QDir::Name | QDir::IgnoreCase),
                 QStringList{u"ayniyat03.mdb"_s});
        QCOMPARE(fisSayisi(dosya(u"ayniyat03.mdb"_s)), 2);

        Saat::Ayarla(QDate(2026, 11, 1));
        Oturum::AylikKopya(klasor());
        QCOMPARE(fisSayisi(dosya(u"AYNIYAT11.MDB"_s)), 2);
        QCOMPARE(fisSayisi(dosya(u"AYNIYAT.MDB"_s)), 2);
    }

    void aylikKopyaOlmazsaEskisiKalir()
    {
        QVERIFY_THROWS_EXCEPTION(VeriHatasi, Oturum::AylikKopya(klasor()));
        QVERIFY(!QFile::exists(dosya(u"AYNIYAT03.MDB"_s)));

        fisEkle(1);
        Oturum::AylikKopya(klasor());
        // A live file that is not ours cannot be copied: the old copy stays.
        QFile bozuk(dosya(u"AYNIYAT.MDB"_s));
        QVERIFY(bozuk.open(QIODevice::WriteOnly | QIODevice::Truncate));
        bozuk.write("bozuk");
        bozuk.close();
        const QString hata = HataMetni<VeriHatasi>([&] { Oturum::AylikKopya(klasor()); });
        QVERIFY2(hata.startsWith(u"Aylık güvenlik kopyası yazılamadı; önceki kopya duruyor."_s), qPrintable(hata));
        QCOMPARE(fisSayisi(dosya(u"AYNIYAT03.MDB"_s)), 1);
        QVERIFY(!QFile::exists(dosya(u"AYNIYAT03.MDB.yeni"_s)));
    }

    // The windowed run asks before making a missing file in a folder that
    // holds data, and then writes no monthly copy from it.
    void eksikDosyaSorulur()
    {
        { Veri veri(klasor()); }
        QVERIFY(QFile::remove(dosya(u"AYNIYAT.MDB"_s)));
        {
            ModalYanit hayir(u"Hayır"_s);
            QVERIFY(!VeriAc(klasor()).veri);
            QVERIFY(hayir.Metin().contains(u"AYNIYAT.MDB bulunamadı"_s));
        }
        QVERIFY(!QFile::exists(dosya(u"AYNIYAT.MDB"_s)));
        ModalYanit evet(u"Evet"_s);
        const AcilanVeri acilan = VeriAc(klasor());
        QVERIFY(evet.Goruldu());
        QVERIFY(acilan.veri);
        QVERIFY(!acilan.kopyaYazilabilir);
        QVERIFY(VeriAc(klasor()).kopyaYazilabilir);
    }

    // A copy that cannot be written is said, and the old one stays.
    void menuAylikKopyayiArkadaYazar()
    {
        fisEkle(1);
        Menu menu(veri());
        QSignalSpy bitti(&menu, &Menu::AylikKopyaBitti);
        menu.AylikKopyaYaz();
        QVERIFY(bitti.wait());
        QCOMPARE(menu.statusBar()->currentMessage(), u"Aylık güvenlik kopyası yazıldı: AYNIYAT03.MDB"_s);
        QCOMPARE(fisSayisi(dosya(u"AYNIYAT03.MDB"_s)), 1);

        QVERIFY(QDir(klasor()).mkdir(u"AYNIYAT03.MDB.yeni"_s));
        QFile(dosya(u"AYNIYAT03.MDB.yeni/x"_s)).open(QIODevice::WriteOnly);
        ModalYanit tamam(u"OK"_s);
        menu.AylikKopyaYaz();
        QVERIFY(bitti.wait());
        QVERIFY(tamam.Goruldu());
        QCOMPARE(menu.statusBar()->currentMessage(), u"Aylık güvenlik kopyası yazılamadı."_s);
        QCOMPARE(fisSayisi(dosya(u"AYNIYAT03.MDB"_s)), 1);
    }

    // The heading and the working month come from the constants; without
    // the row the menu opens empty, without a word.
    void menuSabittenOkur()
    {
        veri().Genel().Calistir(u"update Sabit set KurumAdi = ?, CalisYil = 2025, CalisAy = 11"_s,
                              {u"Yeşiltepe Anadolu Lisesi"_s});
        Menu menu(veri());
        QCOMPARE(menu.windowTitle(), u"Yeşiltepe Anadolu Lisesi - Taşınır Mal Yönetimi"_s);
        QCOMPARE(menu.Baslik->text() + u'|' + menu.CalisYil->text() + u'|' + menu.CalisAy->text(),
                 u"Yeşiltepe Anadolu Lisesi|2025|11"_s);
        veri().Genel().Calistir(u"delete from Sabit"_s);
        Menu bos(veri());
        QCOMPARE(bos.windowTitle(), u" - Taşınır Mal Yönetimi"_s);
        QCOMPARE(bos.Baslik->text() + bos.CalisYil->text(), QString());
    }

    // Entries of a screen not there yet stand disabled, with a hint that
    // says so; defining the screen brings them to life.
    void hazirOlmayanGirislerKapali()
    {
        Menu menu(veri());
        QVERIFY(!menu.Giris(u"FIS"_s) && !menu.Giris(u"CYC"_s));
        QPushButton* sabit = menu.Dugme(u"Command14"_s);
        QVERIFY(!sabit->isEnabled() && !menu.Giris(u"SB"_s)->isEnabled());
        QCOMPARE(sabit->toolTip(), u"Bu bölüm henüz hazır değil."_s);
        QVERIFY(menu.Giris(u"m68"_s)->isEnabled());

        int acilan = 0;
        menu.EkranTanimla(u"Sabit"_s, [&](const CalismaBaglami&, const QVariantMap&) { ++acilan; });
        QVERIFY(sabit->isEnabled() && menu.Giris(u"SB"_s)->isEnabled() && menu.Giris(u"SB2"_s)->isEnabled());
        QCOMPARE(sabit->toolTip(), u"Çalışma Ay-Yıl, Yetkililer, Kurum Bilgiler."_s);
        menu.Giris(u"SB2"_s)->trigger();
        QCOMPARE(acilan, 1);

        // Hovering a button puts its hint on the strip.
        QEvent uzerinde(QEvent::Enter);
        QApplication::sendEvent(menu.Dugme(u"cmd2"_s), &uzerinde);
        QCOMPARE(menu.Picture2->text(), u"Tek Düzen Hesap Planı İzleme-Değiştirme."_s);
    }

    void girisKipDegerleriniYazar()
    {
        Menu menu(veri());
        QList<QPair<CalismaBaglami, QVariantMap>> acilanlar;
        menu.EkranTanimla(u"FIS_K"_s, [&](const CalismaBaglami& b, const QVariantMap& kip) {
            acilanlar.append({b, kip});
        });
        menu.CalisYil->setText(u"2024"_s);
        menu.CalisAy->setText(u"7"_s);
        QTest::mouseClick(menu.Dugme(u"Command13"_s), Qt::LeftButton);
        QTest::mouseClick(menu.Dugme(u"CmdCikis"_s), Qt::LeftButton);
        menu.Giris(u"TF2"_s)->trigger();
        QCOMPARE(acilanlar.size(), 3);
        // A year typed on the menu reaches the screens opened afterwards.
        QCOMPARE(acilanlar[0].first.CalisYil + u'.' + acilanlar[0].first.CalisAy, u"2024.7"_s);
        QCOMPARE(acilanlar[0].second.value(u"FCins"_s).toString() + acilanlar[0].second.value(u"Hangi"_s).toString(),
                 u"GG"_s);
        QCOMPARE(acilanlar[1].second.value(u"FCins"_s).toString(), u"C"_s);
        QVERIFY(acilanlar[1].second.value(u"CikisGizle"_s).toBool());
        // The last kind stays: TF2 writes ilk1 alone.
        QCOMPARE(acilanlar[2].second, (QVariantMap{{u"ilk1"_s, u"1"_s}}));
    }

    // Esc goes to the exit button; keys that once opened missing forms say
    // so and the menu stays.
    void escCikisDugmesineEnterCikar()
    {
        Menu menu(veri());
        menu.show();
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        menu.CalisYil->setFocus();
        QSignalSpy cikis(&menu, &Menu::Cikis);
        QTest::keyClick(menu.CalisYil, Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), menu.Cd8);
        QTest::keyClick(menu.Cd8, Qt::Key_Return);
        QCOMPARE(cikis.count(), 1);
        menu.Giris(u"Ck"_s)->trigger();
        QCOMPARE(cikis.count(), 2);

        ModalYanit yanit(u"OK"_s);
        QTest::keyClick(menu.Cd8, Qt::Key_Down);
        QCOMPARE(yanit.Metin(), u"Bu tuşa bağlı bir ekran bulunmuyor."_s);
        QVERIFY(menu.isVisible());
    }
};

QTEST_MAIN(TstOturum)
#include "tst_oturum.moc"
