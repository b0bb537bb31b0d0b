#include "ekran_testi.h"
#include "modal_yanit.h"
#include "sabit.h"
#include "sabit_kayit.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

class TstSabit : public QObject, protected EkranTesti<Sabit>
{
    Q_OBJECT

    static inline const QString kilit =
        u"create trigger kilit before update on Sabit begin select raise(abort, 'kilitli'); end"_s;

    // Every edited field with a text of its own.
    static SabitSatiri ornek()
    {
        SabitSatiri s;
        for (const SabitAlan& a : SabitAlanlari())
            s.insert(a.alan, a.alan + u" Çağ"_s);
        s[u"KurumAdi"_s] = u"Hacı Bektaş-ı Veli'nin Okulu"_s;
        s[u"CalisYil"_s] = u"2024"_s;
        s[u"CalisAy"_s] = u"11"_s;
        return s;
    }
    // Opens the screen, the saved example first when kayitli.
    void ac(bool kayitli = true)
    {
        if (kayitli)
            SabitKayit::Kaydet(veri().Genel(), ornek());
        EkranTesti::ac();
    }

private slots:
    void init() { Yenile(); }
    void cleanup() { delete m_ekran; }

    // A save empties the fields off the screen but the stamp rates and the
    // sponsor; a failed first save takes its insert back; the first row gets
    // key 1, a second save keeps one row, and every field reads back.
    void kayit()
    {
        sql(u"update Sabit set FutFedOran = '1', FedOran = '2', Sezon = '3', Sezon1 = '4', DamSinir1 = '5', "
            "DamSinir2 = '6', DamSinir3 = '7', DamgaOran2 = '8', DamgaOran3 = '9', LigSponsoru = 'Spor'"_s);
        SabitKayit::Kaydet(veri().Genel(), ornek());
        // Empty, not NULL: readers compare with ''.
        QCOMPARE(sql(u"select ifnull(FutFedOran || FedOran || Sezon || Sezon1 || DamSinir1 || DamSinir2 || "
                     "DamSinir3, 'NULL') || DamgaOran2 || DamgaOran3 || LigSponsoru from Sabit"_s),
                 u"89Spor"_s);
        SabitKayit::Sil(veri().Genel());
        QVERIFY(!SabitKayit::Var(veri().Genel()));
        QVERIFY(!SabitKayit::Getir(veri().Genel()));
        sql(kilit);
        QVERIFY_THROWS_EXCEPTION(VeriHatasi, SabitKayit::Kaydet(veri().Genel(), ornek()));
        QVERIFY(!SabitKayit::Var(veri().Genel()));
        sql(u"drop trigger kilit"_s);
        SabitKayit::Kaydet(veri().Genel(), ornek());
        SabitKayit::Kaydet(veri().Genel(), ornek());
        QCOMPARE(sql(u"select count(*) || '/' || min(Anahtar) from Sabit"_s), u"1/1"_s);
        QCOMPARE(SabitKayit::Getir(veri().Genel()).value_or(SabitSatiri()), ornek());
    }

    void sayilarValIleYazilir_data()
    {
        QTest::addColumn<QString>("yazilan");
        QTest::addColumn<double>("saklanan");
        QTest::newRow("harf sonda") << "2025x" << 2025.0;
        QTest::newRow("harf") << "abc" << 0.0;
    }
    void sayilarValIleYazilir()
    {
        QFETCH(QString, yazilan);
        SabitSatiri s = ornek();
        s[u"CalisYil"_s] = s[u"CalisAy"_s] = yazilan;
        SabitKayit::Kaydet(veri().Genel(), s);
        QTEST(sql(u"select CalisYil from Sabit"_s).toDouble(), "saklanan");
        QCOMPARE(sql(u"select typeof(CalisAy) from Sabit"_s), u"integer"_s);
    }

    // Tab runs through every box in table order; each typed text reaches its field.
    void f1SekmeSirasiylaYazilaniKaydeder()
    {
        ac(false);
        QSignalSpy degisti(m_ekran.data(), &Sabit::CalismaDegisti);
        bul(u"Anahtar"_s)->setFocus();
        SabitSatiri beklenen;
        for (const SabitAlan& a : SabitAlanlari()) {
            Tus(Qt::Key_Tab);
            QCOMPARE(Odak(), a.kontrol);
            const QString metin =
                a.alan == u"CalisYil" ? u"2031"_s : a.alan == u"CalisAy" ? u"7"_s : a.kontrol + u" O'Neil"_s;
            QTest::keyClicks(QApplication::focusWidget(), metin);
            beklenen.insert(a.alan, metin);
        }
        Tus(Qt::Key_Tab);
        QCOMPARE(Odak(), u"c2"_s);
        Tus(Qt::Key_F1);
        QCOMPARE(SabitKayit::Getir(veri().Genel()).value_or(SabitSatiri()), beklenen);
        QCOMPARE(degisti.size(), 1);
        QCOMPARE(degisti[0], (QVariantList{u"2031"_s, u"7"_s}));
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"    Kayıt Başarılı  .. "_s);
    }

    // A failed save or read shows the data error and never the success text.
    void hataGosterilir_data()
    {
        QTest::addColumn<QString>("bozma");
        QTest::addColumn<int>("kod");
        QTest::addColumn<QString>("durum");
        QTest::newRow("kayıt") << kilit << int(Qt::Key_F1) << " Kayıt yapılamadı.";
        QTest::newRow("okuma") << "drop table Sabit" << int(Qt::Key_Return) << " Kayıt getirilemiyor.";
    }
    void hataGosterilir()
    {
        QFETCH(QString, bozma);
        QFETCH(int, kod);
        ac();
        QSignalSpy degisti(m_ekran.data(), &Sabit::CalismaDegisti);
        sql(bozma);
        bul(u"Anahtar"_s)->setFocus();
        ModalYanit yanit(u"Tamam"_s);
        Tus(kod);
        QVERIFY(yanit.Metin().startsWith(u"Veri tabanı hatası"_s));
        QTEST(m_ekran->DurumSatiri()->text(), "durum");
        QCOMPARE(degisti.size(), 0);
    }

    void cevap_data() { CevapSatirlari(); }
    // F5 asks before it deletes. A missing row is offered at open and on Enter
    // in Anahtar alike, and either answer clears the boxes.
    void cevap()
    {
        QFETCH(QString, cevap);
        const bool evet = cevap == u"Evet";
        ac();
        bul(u"Anahtar"_s)->setText(u"0"_s);  // no row to delete: not asked
        {
            ModalYanit sorulmaz(cevap);
            Tus(Qt::Key_F5);
            QVERIFY(!sorulmaz.Goruldu());
        }
        bul(u"Anahtar"_s)->setText(u"1"_s);
        {
            ModalYanit yanit(cevap);
            Tus(Qt::Key_F5);
            QCOMPARE(yanit.Metin(), u"Bu bilgileri silmek istiyormusunuz ?"_s);
            QCOMPARE(yanit.Baslik(), u"Siliniyor"_s);
        }
        QCOMPARE(SabitKayit::Var(veri().Genel()), !evet);
        QCOMPARE(metin(u"Muhasebeci1"_s).isEmpty(), evet);
        Etkinlestir(m_ekran);
        if (evet)
            QCOMPARE(Odak(), u"Muhasebeci1"_s);
        SabitKayit::Sil(veri().Genel());
        bul(u"KurumAdi"_s)->setText(u"yazılan"_s);
        bul(u"Muhasebeci1"_s)->setText(u"yazılan"_s);
        bul(u"Anahtar"_s)->setFocus();
        {
            ModalYanit yanit(cevap);
            Tus(Qt::Key_Return);
            QVERIFY(yanit.Goruldu());
        }
        QCOMPARE(metin(u"KurumAdi"_s) + metin(u"Muhasebeci1"_s), QString());
        delete m_ekran;
        ModalYanit yanit(cevap);
        ac(false);
        QCOMPARE(yanit.Metin(), u"Böyle bir kayıt bulunamadı, Şimdi açmak ister misiniz ?"_s);
        QCOMPARE(Odak(), evet ? u"Muhasebeci1"_s : u"Anahtar"_s);
    }

    // Enter in Anahtar reads the row saved after open and walks the
    // signatories, ending in SubeMudur2; Ctrl+F9 in Muhasebeci1 goes to the
    // institution; F2 empties the names and the month and goes to SubeMudur1.
    void tuslar()
    {
        ac(false);
        SabitKayit::Kaydet(veri().Genel(), ornek());
        const struct
        {
            const char* kutu;
            int tus;
            Qt::KeyboardModifiers ek;
            const char* odakta;
        } adimlar[] = {
            {"Anahtar", Qt::Key_Return, {}, "Muhasebeci1"},
            {"Muhasebeci1", Qt::Key_Return, {}, "Muhasebeci2"},
            {"Muhasebeci2", Qt::Key_Return, {}, "AyniyatMemuru1"},
            {"AyniyatMemuru1", Qt::Key_Return, {}, "AyniyatMemuru2"},
            {"AyniyatMemuru2", Qt::Key_Return, {}, "SubeMudur1"},
            {"SubeMudur1", Qt::Key_Return, {}, "SubeMudur2"},
            {"SubeMudur2", Qt::Key_Return, {}, "SubeMudur2"},
            {"Muhasebeci2", Qt::Key_F9, Qt::ControlModifier, "Muhasebeci2"},
            {"Muhasebeci1", Qt::Key_F9, Qt::ControlModifier, "KurumAdi"},
            {"KurumAdi", Qt::Key_F2, {}, "SubeMudur1"},
        };
        for (const auto& a : adimlar) {
            bul(QString::fromLatin1(a.kutu))->setFocus();
            Tus(a.tus, a.ek);
            QCOMPARE(Odak(), QString::fromLatin1(a.odakta));
        }
        for (const char* ad : {"Muhasebeci1", "Muhasebeci2", "AyniyatMemuru1", "AyniyatMemuru2", "SubeMudur1",
                               "SubeMudur2", "KurumAdi", "CalisAy", "CalisYil"})
            QVERIFY2(metin(QString::fromLatin1(ad)).isEmpty(), ad);
        QCOMPARE(metin(u"itaAmiriAdi"_s) + u'|' + metin(u"KurumKod"_s), u"itaAmiriAd Çağ|KurumKod Çağ"_s);
    }
};

QTEST_MAIN(TstSabit)
#include "tst_sabit.moc"
