#include "kayit.h"

#include <QTest>

class TstKayit : public QObject
{
    Q_OBJECT

private slots:
    void paraYaz_data()
    {
        QTest::addColumn<QVariant>("deger");
        QTest::addColumn<QString>("para");
        QTest::addColumn<QString>("duz");

        QTest::newRow("sıfır") << QVariant(0) << "" << ",";
        QTest::newRow("boş metin") << QVariant(QString()) << "" << "";
        QTest::newRow("sıfır metni") << QVariant(QStringLiteral("0,00")) << "" << ",";
        QTest::newRow("tutar") << QVariant(1234567.891) << "1.234.567,89" << "1.234.567,89";
        QTest::newRow("tam") << QVariant(5) << "5,00" << "5,";
        QTest::newRow("kuruş") << QVariant(0.5) << ",50" << ",5";
    }

    void paraYaz()
    {
        QFETCH(QVariant, deger);
        QTEST(ParaYaz(deger), "para");
        QTEST(DuzBicim(deger), "duz");
    }

    void sayiYaslama_data()
    {
        QTest::addColumn<int>("yordam");
        QTest::addColumn<QVariant>("deger");
        QTest::addColumn<int>("genislik");
        QTest::addColumn<QString>("beklenen");

        enum { Miktar4, Tutar2, Tutar2Tek };
        QTest::newRow("miktar") << int(Miktar4) << QVariant(1.5) << 8 << "    1,5000";
        QTest::newRow("miktar sıfır") << int(Miktar4) << QVariant(0) << 8 << "";
        QTest::newRow("tutar") << int(Tutar2) << QVariant(1234.5) << 10 << "    1.234,50";
        QTest::newRow("tutar boş") << int(Tutar2) << QVariant(QString()) << 10 << "";
        QTest::newRow("tutar geniş") << int(Tutar2) << QVariant(1234567.5) << 5 << "1.234.567,50";
        QTest::newRow("tek") << int(Tutar2Tek) << QVariant(1234.5) << 10 << "  1.234,50";
        QTest::newRow("tek noktalı metin") << int(Tutar2Tek) << QVariant(QStringLiteral("12.5")) << 6 << " 12,50";
        QTest::newRow("tek sıfır metni") << int(Tutar2Tek) << QVariant(QStringLiteral("0.00")) << 6 << "";
    }

    void sayiYaslama()
    {
        QFETCH(int, yordam);
        QFETCH(QVariant, deger);
        QFETCH(int, genislik);
        QFETCH(QString, beklenen);
        QString sonuc;
        switch (yordam) {
        case 0: sonuc = Miktar4Yaz(deger, genislik); break;
        case 1: sonuc = Tutar2Yaz(deger, genislik); break;
        default: sonuc = Tutar2YazTek(deger, genislik); break;
        }
        QCOMPARE(sonuc, beklenen);
        QCOMPARE(deger.toString(), beklenen);
    }

    void sagaDaya_data()
    {
        QTest::addColumn<QString>("metin");
        QTest::addColumn<int>("genislik");
        QTest::addColumn<QString>("tek");
        QTest::addColumn<QString>("cift");

        QTest::newRow("kısa") << " ab " << 4 << "   ab" << "     ab";
        QTest::newRow("uzun") << "abcdef" << 3 << " abcdef" << " abcdef";
        QTest::newRow("sıfır") << "0" << 3 << "" << "     0";
        QTest::newRow("sıfır kesirli") << " 0,00" << 3 << "" << " 0,00";
        QTest::newRow("boş") << "" << 2 << "" << "     ";
        QTest::newRow("sekme kalır") << "\t5" << 3 << "  \t5" << "   \t5";
    }

    void sagaDaya()
    {
        QFETCH(QString, metin);
        QFETCH(int, genislik);
        QFETCH(QString, tek);
        QFETCH(QString, cift);
        QString a = metin;
        QCOMPARE(SagaDaya(a, genislik), tek);
        QCOMPARE(a, tek);
        QString b = metin;
        QCOMPARE(SagaDayaCift(b, genislik), cift);
        QCOMPARE(b, cift);
    }

    void val_data()
    {
        QTest::addColumn<QString>("metin");
        QTest::addColumn<double>("beklenen");

        QTest::newRow("boş") << "" << 0.0;
        QTest::newRow("boşluklu") << " 1 2 3" << 123.0;
        QTest::newRow("virgül durdurur") << "12,5" << 12.0;
        QTest::newRow("nokta") << "12.5" << 12.5;
        QTest::newRow("ikinci nokta") << "1.2.3" << 1.2;
        QTest::newRow("sekme satır") << "\t-\n4 5" << -45.0;
        QTest::newRow("artı") << "+7" << 7.0;
        QTest::newRow("çift işaret") << "+-7" << 0.0;
        QTest::newRow("harf") << "abc12" << 0.0;
        QTest::newRow("sonda harf") << "24 ve 57" << 24.0;
        QTest::newRow("yalnız nokta") << "." << 0.0;
        QTest::newRow("noktayla başlar") << ".5" << 0.5;
        QTest::newRow("üs") << "1e3" << 1000.0;
        QTest::newRow("yarım üs") << "12e" << 12.0;
        QTest::newRow("eksi kesir harfle biter") << " -3.5x" << -3.5;
    }

    void val()
    {
        QFETCH(QString, metin);
        QTEST(Val(metin), "beklenen");
    }

    void yaziylaTutar_data()
    {
        QTest::addColumn<double>("tutar");
        QTest::addColumn<QString>("beklenen");

        QTest::newRow("0") << 0.0 << "";
        QTest::newRow("11") << 11.0 << "OnBir";
        QTest::newRow("60") << 60.0 << "Atmış";
        QTest::newRow("100") << 100.0 << "Yüz";
        QTest::newRow("101") << 101.0 << "YüzBir";
        QTest::newRow("200") << 200.0 << "İkiYüz";
        QTest::newRow("1000") << 1000.0 << "Bin";
        QTest::newRow("1001") << 1001.0 << "BinBir";
        QTest::newRow("1010") << 1010.0 << "BinOn";
        QTest::newRow("2000") << 2000.0 << "İkiBin";
        QTest::newRow("100000") << 100000.0 << "YüzBin";
        QTest::newRow("101001") << 101001.0 << "YüzBirBinBir";
        QTest::newRow("1000000") << 1000000.0 << "BirMilyon";
        QTest::newRow("1230450") << 1230450.0 << "BirMilyonİkiYüzOtuzBinDörtYüzElli";
        QTest::newRow("1001000") << 1001000.0 << "BirMilyonBin";
        QTest::newRow("1000000000") << 1000000000.0 << "BirMilyar";
        QTest::newRow("999999999999") << 999999999999.0
            << "DokuzYüzDoksanDokuzMilyarDokuzYüzDoksanDokuzMilyonDokuzYüzDoksanDokuzBinDokuzYüzDoksanDokuz";
        // Thirteen digits: only the first twelve are read.
        QTest::newRow("1000000000000") << 1e12 << "YüzMilyar";
    }

    void yaziylaTutar()
    {
        QFETCH(double, tutar);
        QTEST(YaziylaTutar(tutar), "beklenen");
    }

    // An error text in "hata" means the sum cannot be written out.
    void tutarYaziyla_data()
    {
        QTest::addColumn<double>("toplam");
        QTest::addColumn<QString>("beklenen");
        QTest::addColumn<QString>("hata");

        QTest::newRow("kuruşsuz") << 1500.0 << "BinBeşYüz Lira " << "";
        QTest::newRow("kuruşlu") << 1230450.25 << "BirMilyonİkiYüzOtuzBinDörtYüzElli Lira YirmiBeş kuruş" << "";
        QTest::newRow("tek hane kuruş onluktur") << 12.5 << "Onİki Lira Elli kuruş" << "";
        QTest::newRow("üç hane kuruşun ilk ikisi") << 12.891 << "Onİki Lira SeksenDokuz kuruş" << "";
        QTest::newRow("liraya varmaz") << 0.75 << " Lira YetmişBeş kuruş" << "";
        QTest::newRow("toplama artığı") << 0.1 + 0.2 << " Lira Otuz kuruş" << "";
        QTest::newRow("sıfır") << 0.0 << " Lira " << "";
        QTest::newRow("5 kuruş") << 12.05 << "" << "1 ile 9 kuruş arası";
        QTest::newRow("1 kuruş") << 0.01 << "" << "1 ile 9 kuruş arası";
        QTest::newRow("eksi") << -12.0 << "" << "eksi tutar";
        QTest::newRow("eksi kuruşlu") << -1234.5 << "" << "eksi tutar";
        QTest::newRow("üslü") << 1e15 << "" << "tam sayı değil";
    }

    void tutarYaziyla()
    {
        QFETCH(double, toplam);
        QFETCH(QString, hata);
        try {
            QTEST(TutarYaziyla(toplam), "beklenen");
            QVERIFY2(hata.isEmpty(), qPrintable(hata));
        } catch (const BicimHatasi& h) {
            QVERIFY2(!hata.isEmpty() && h.Mesaj().contains(hata), qPrintable(h.Mesaj()));
        }
    }
};

QTEST_MAIN(TstKayit)
#include "tst_kayit.moc"
