#include "etkinlestir.h"
#include "modal_yanit.h"
#include "sabit.h"
#include "sabit_kayit.h"
#include "veritabani.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class TstSabit : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_tmp;
    QPointer<Sabit> m_ekran;

    static inline const QString kilit =
        QStringLiteral("create trigger kilit before update on Sabit begin select raise(abort, 'kilitli'); end");

    QString klasor() const { return m_tmp->path(); }

    // Runs a statement on GENEL.MDB; the first value of a query.
    QVariant sql(const QString& komut)
    {
        Veritabani vt(klasor(), Dosya::Genel);
        QSqlQuery q = vt.Sorgu(komut);
        return q.next() ? q.value(0) : QVariant();
    }

    // Every edited field with a text of its own.
    static SabitSatiri ornek()
    {
        SabitSatiri s;
        for (const SabitAlan& a : SabitAlanlari())
            s.insert(a.alan, a.alan + QStringLiteral(" Çağ"));
        s[QStringLiteral("KurumAdi")] = QStringLiteral("Hacı Bektaş-ı Veli'nin Okulu");
        s[QStringLiteral("CalisYil")] = QStringLiteral("2024");
        s[QStringLiteral("CalisAy")] = QStringLiteral("11");
        return s;
    }

    void ac()
    {
        m_ekran = new Sabit({QStringLiteral("2026"), QStringLiteral("3"), QStringLiteral("Okul"), klasor()});
        m_ekran->show();
        etkinlestir();
    }
    void etkinlestir() { Etkinlestir(m_ekran); }
    QLineEdit* kutu(const QString& ad) const { return m_ekran->findChild<QLineEdit*>(ad); }
    QString odak() const { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); }
    static void tus(int kod, Qt::KeyboardModifiers ek = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(kod), ek);
    }

private slots:
    void init() { m_tmp = std::make_unique<QTemporaryDir>(); }
    void cleanup() { delete m_ekran; }

    void kaydetHerAlaniGeriVerir()
    {
        SabitKayit::Kaydet(klasor(), ornek());
        QCOMPARE(SabitKayit::Getir(klasor()).value_or(SabitSatiri()), ornek());
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
        QFETCH(double, saklanan);
        SabitSatiri s = ornek();
        s[QStringLiteral("CalisYil")] = yazilan;
        s[QStringLiteral("CalisAy")] = yazilan;
        SabitKayit::Kaydet(klasor(), s);
        QCOMPARE(sql(QStringLiteral("select CalisYil from Sabit")).toDouble(), saklanan);
        QCOMPARE(sql(QStringLiteral("select typeof(CalisAy) from Sabit")).toString(), QStringLiteral("integer"));
    }

    void ekranDisiAlanlar()
    {
        sql(QStringLiteral("update Sabit set FutFedOran = '1', FedOran = '2', Sezon = '3', Sezon1 = '4', DamSinir1 "
                           "= '5', DamSinir2 = '6', DamSinir3 = '7', DamgaOran2 = '8', DamgaOran3 = '9', "
                           "LigSponsoru = 'Spor'"));
        SabitKayit::Kaydet(klasor(), ornek());
        // Empty, not NULL: readers compare with ''.
        QCOMPARE(sql(QStringLiteral("select ifnull(FutFedOran || FedOran || Sezon || Sezon1 || DamSinir1 || "
                                    "DamSinir2 || DamSinir3, 'NULL') from Sabit")).toString(), QString());
        QCOMPARE(sql(QStringLiteral("select DamgaOran2 || DamgaOran3 || LigSponsoru from Sabit")).toString(),
                 QStringLiteral("89Spor"));
    }

    void ilkKayitAnahtar1Olur()
    {
        SabitKayit::Sil(klasor());
        QVERIFY(!SabitKayit::Var(klasor()));
        QVERIFY(!SabitKayit::Getir(klasor()));
        SabitKayit::Kaydet(klasor(), ornek());
        SabitKayit::Kaydet(klasor(), ornek());
        QCOMPARE(sql(QStringLiteral("select count(*) || '/' || min(Anahtar) from Sabit")).toString(),
                 QStringLiteral("1/1"));
    }

    void yazilamayanKayitGeriAlinir()
    {
        SabitKayit::Sil(klasor());
        sql(kilit);
        QVERIFY_THROWS_EXCEPTION(VeriHatasi, SabitKayit::Kaydet(klasor(), ornek()));
        QVERIFY(!SabitKayit::Var(klasor()));  // the insert went back with the failed update
    }

    // Tab runs through every box in table order; each typed text reaches its field.
    void f1SekmeSirasiylaYazilaniKaydeder()
    {
        ac();
        QSignalSpy degisti(m_ekran.data(), &Sabit::CalismaDegisti);
        kutu(QStringLiteral("Anahtar"))->setFocus();
        SabitSatiri beklenen;
        for (const SabitAlan& a : SabitAlanlari()) {
            tus(Qt::Key_Tab);
            QCOMPARE(odak(), a.kontrol);
            const QString metin = a.alan == u"CalisYil" ? QStringLiteral("2031")
                                  : a.alan == u"CalisAy" ? QStringLiteral("7")
                                                         : a.kontrol + QStringLiteral(" O'Neil");
            QTest::keyClicks(QApplication::focusWidget(), metin);
            beklenen.insert(a.alan, metin);
        }
        tus(Qt::Key_Tab);
        QCOMPARE(odak(), QStringLiteral("c2"));
        tus(Qt::Key_F1);
        QCOMPARE(SabitKayit::Getir(klasor()).value_or(SabitSatiri()), beklenen);
        QCOMPARE(degisti.size(), 1);
        QCOMPARE(degisti[0], (QVariantList{QStringLiteral("2031"), QStringLiteral("7")}));
        QCOMPARE(m_ekran->DurumSatiri()->text(), QStringLiteral("    Kayıt Başarılı  .. "));
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
        QFETCH(QString, durum);
        SabitKayit::Kaydet(klasor(), ornek());
        ac();
        QSignalSpy degisti(m_ekran.data(), &Sabit::CalismaDegisti);
        sql(bozma);
        kutu(QStringLiteral("Anahtar"))->setFocus();
        ModalYanit yanit(QStringLiteral("Tamam"));
        tus(kod);
        QVERIFY(yanit.Metin().startsWith(QStringLiteral("Veri tabanı hatası")));
        QCOMPARE(m_ekran->DurumSatiri()->text(), durum);
        QCOMPARE(degisti.size(), 0);
    }

    void f2TemizlerVeSubeMudurunaGecer()
    {
        SabitKayit::Kaydet(klasor(), ornek());
        ac();
        tus(Qt::Key_F2);
        for (const char* ad : {"Muhasebeci1", "Muhasebeci2", "AyniyatMemuru1", "AyniyatMemuru2", "SubeMudur1",
                               "SubeMudur2", "KurumAdi", "CalisAy", "CalisYil"})
            QVERIFY2(kutu(QString::fromLatin1(ad))->text().isEmpty(), ad);
        QCOMPARE(kutu(QStringLiteral("KurumKod"))->text(), QStringLiteral("KurumKod Çağ"));
        QCOMPARE(odak(), QStringLiteral("SubeMudur1"));
    }

    void f5Siler_data()
    {
        QTest::addColumn<QString>("cevap");
        QTest::newRow("evet") << "Evet";
        QTest::newRow("hayır") << "Hayır";
    }
    void f5Siler()
    {
        QFETCH(QString, cevap);
        const bool evet = cevap == u"Evet";
        SabitKayit::Kaydet(klasor(), ornek());
        ac();
        ModalYanit yanit(cevap);
        tus(Qt::Key_F5);
        QCOMPARE(yanit.Metin(), QStringLiteral("Bu bilgileri silmek istiyormusunuz ?"));
        QCOMPARE(yanit.Baslik(), QStringLiteral("Siliniyor"));
        QCOMPARE(SabitKayit::Var(klasor()), !evet);
        QCOMPARE(kutu(QStringLiteral("Muhasebeci1"))->text().isEmpty(), evet);
        etkinlestir();
        if (evet)
            QCOMPARE(odak(), QStringLiteral("Muhasebeci1"));
    }

    // At open and on Enter in Anahtar alike: a missing row is offered, and
    // either answer clears the boxes.
    void kayitYoksaSorulur_data() { f5Siler_data(); }
    void kayitYoksaSorulur()
    {
        QFETCH(QString, cevap);
        SabitKayit::Sil(klasor());
        {
            ModalYanit yanit(cevap);
            ac();
            QCOMPARE(yanit.Metin(), QStringLiteral("Böyle bir kayıt bulunamadı, Şimdi açmak ister misiniz ?"));
        }
        QCOMPARE(odak(), cevap == u"Evet" ? QStringLiteral("Muhasebeci1") : QStringLiteral("Anahtar"));
        for (const char* ad : {"KurumAdi", "Muhasebeci1"})
            kutu(QString::fromLatin1(ad))->setText(QStringLiteral("yazılan"));
        kutu(QStringLiteral("Anahtar"))->setFocus();
        ModalYanit yanit(cevap);
        tus(Qt::Key_Return);
        QVERIFY(yanit.Goruldu());
        QVERIFY(kutu(QStringLiteral("KurumAdi"))->text().isEmpty());
        QVERIFY(kutu(QStringLiteral("Muhasebeci1"))->text().isEmpty());
    }

    void enterYolu()
    {
        ac();
        SabitKayit::Kaydet(klasor(), ornek());  // after open: Enter in Anahtar reads it
        kutu(QStringLiteral("Anahtar"))->setFocus();
        tus(Qt::Key_Return);
        QCOMPARE(kutu(QStringLiteral("itaAmiriAdi"))->text(), QStringLiteral("itaAmiriAd Çağ"));
        for (const char* sonraki : {"Muhasebeci1", "Muhasebeci2", "AyniyatMemuru1", "AyniyatMemuru2", "SubeMudur1",
                                    "SubeMudur2", "SubeMudur2"}) {
            QCOMPARE(odak(), QString::fromLatin1(sonraki));
            tus(Qt::Key_Return);
        }
        kutu(QStringLiteral("Muhasebeci2"))->setFocus();
        tus(Qt::Key_F9, Qt::ControlModifier);
        QCOMPARE(odak(), QStringLiteral("Muhasebeci2"));
        kutu(QStringLiteral("Muhasebeci1"))->setFocus();
        tus(Qt::Key_F9, Qt::ControlModifier);
        QCOMPARE(odak(), QStringLiteral("KurumAdi"));
    }

    void escKapatir()
    {
        ac();
        tus(Qt::Key_Escape);
        QTRY_VERIFY(m_ekran.isNull());
    }
};

QTEST_MAIN(TstSabit)
#include "tst_sabit.moc"
