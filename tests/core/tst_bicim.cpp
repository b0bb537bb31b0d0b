#include "bicim.h"

#include <QTest>

class TstBicim : public QObject
{
    Q_OBJECT

private slots:
    void format_data()
    {
        QTest::addColumn<QVariant>("deger");
        QTest::addColumn<QString>("desen");
        QTest::addColumn<QString>("beklenen");

        const auto satir = [](const char* ad, const QVariant& d, const char* desen, const QString& b) {
            QTest::newRow(ad) << d << QString::fromLatin1(desen) << b;
        };
        // '#' forces no digit, not even the zero before the decimal sign.
        satir("sıfır ###", 0, "###", "");
        satir("yarım", 0.5, "###,###,###.#0", ",50");
        satir("gruplu", 1234567.891, "###,###,###.#0", "1.234.567,89");
        satir("yer fazlası", 1234567890123.45, "###,###,###.#0", "1.234.567.890.123,45");
        satir("### gruplamaz", 1234567, "###", "1234567");
        satir("### yuvarlar", 2.5, "###", "3");
        // The decimal sign stays when every decimal placeholder is '#'.
        satir("düz beş", 5, "#######,###,###.##", "5,");
        satir("düz kesir", 1234.5, "#######,###,###.##", "1.234,5");
        satir("# küçük", 0.0049, "#.##", ",");
        satir("# yuvarlanınca kısalır", 8.0995, "#.##", "8,1");
        satir("# taşar", 0.999, "#.##", "1,");
        // A '#' before a '0' in the fraction acts as '0'.
        satir("miktar sıfır", 0, "####,###,##0.###0", "0,0000");
        satir("miktar yuvarlar", 1234.56789, "####,###,##0.###0", "1.234,5679");
        satir("karışık kesir az", 9.8, "#0.#0#0#0#0#", "9,80000000");
        satir("karışık kesir tam", 9.87654321, "#0.#0#0#0#0#", "9,87654321");
        satir("karışık her iki", 1.2, "0#.0#0#0#0#0", "01,200000000");
        satir("çok küçük", 0.00010705, "#0.##########", "0,00010705");
        satir("0## kısa", 5, "0##", "005");
        satir("0## tam", 100, "0##", "100");
        satir("sıfırlar arada", 1, "#00##00#0", "00000001");
        satir("zorunlu gruplu", 1, "0,000,000,000", "0.000.000.001");
        satir("#,##0.00", 1234567.5, "#,##0.00", "1.234.567,50");
        satir("0", 0, "0", "0");
        satir("tamsız desen", 12.5, ".##", "12,5");
        satir("harf", 17, "#3", "173");
        // Half away from zero on the fifteen digit form, not on the binary value.
        satir("1,005", 1.005, "0.00", "1,01");
        satir("0,125", 0.125, "0.00", "0,13");
        satir("eksi 0,125", -0.125, "0.00", "-0,13");
        satir("eksi", -1234.5, "#,##0.00", "-1.234,50");
        satir("eksi tamsız", -0.1, ".#", "-,1");
        satir("eksi sıfıra yuvarlanır", -0.001, "0.00", "-0,00");
        satir("dokuzlar", 9.9999999, "#0.000000", "10,000000");
        satir("büyük", 1e20, "#,##0", "100.000.000.000.000.000.000");
        satir("uzun tamsayı", QVariant(qlonglong(123456789012345678)), "#,##0", "123.456.789.012.345.678");
        satir("boş değer", QVariant(), "0.00", "0,00");
        satir("metin", QStringLiteral("1.234,5"), "#,##0.00", "1.234,50");
        satir("metin boşluklu", QStringLiteral("  12,345 "), "0.00", "12,35");
        satir("metin eksi", QStringLiteral("-0,5"), "0.00", "-0,50");
        satir("metin üslü", QStringLiteral("1,5E+3"), "0", "1500");
        satir("metin sıfır", QStringLiteral("0,00"), "###", "");
        satir("metin boş", QString(), "###,###,###.#0", "");
        satir("metin sayı değil", QStringLiteral("abc"), "0.00", "abc");
        satir("metin iki virgül", QStringLiteral("1,2,3"), "0.00", "1,2,3");
        satir("metin yalnız eksi", QStringLiteral("-"), "0.00", "-");
    }

    void format()
    {
        QFETCH(QVariant, deger);
        QFETCH(QString, desen);
        QTEST(Format(deger, desen), "beklenen");
    }

    void sayiMetni_data()
    {
        QTest::addColumn<double>("deger");
        QTest::addColumn<QString>("beklenen");

        QTest::newRow("sıfır") << 0.0 << "0";
        QTest::newRow("kesir") << 1234.5 << "1234,5";
        QTest::newRow("yarım") << 0.5 << "0,5";
        QTest::newRow("eksi") << -12.25 << "-12,25";
        QTest::newRow("toplama artığı") << 0.1 + 0.2 << "0,3";
        QTest::newRow("on beş hane") << 999999999999999.0 << "999999999999999";
        QTest::newRow("büyük üslü") << 1e15 << "1E+15";
        QTest::newRow("büyük üslü kesirli") << 1.5e20 << "1,5E+20";
        QTest::newRow("küçük düz") << 0.0001 << "0,0001";
        QTest::newRow("küçük üslü") << 0.000015 << "1,5E-05";
    }

    void sayiMetni()
    {
        QFETCH(double, deger);
        QTEST(SayiMetni(deger), "beklenen");
    }

    void sayiDegeri_data()
    {
        QTest::addColumn<QVariant>("deger");
        QTest::addColumn<bool>("sayi");
        QTest::addColumn<double>("beklenen");

        QTest::newRow("çift") << QVariant(2.5) << true << 2.5;
        QTest::newRow("boş değer") << QVariant() << true << 0.0;
        QTest::newRow("türkçe metin") << QVariant(QStringLiteral(" 1.234,5 ")) << true << 1234.5;
        QTest::newRow("noktalı metin") << QVariant(QStringLiteral("1.5")) << true << 15.0;
        QTest::newRow("küçük metin") << QVariant(QStringLiteral("0,05")) << true << 0.05;
        QTest::newRow("boş metin") << QVariant(QString()) << false << 0.0;
        QTest::newRow("harfli metin") << QVariant(QStringLiteral("12a")) << false << 0.0;
    }

    void sayiDegeri()
    {
        QFETCH(QVariant, deger);
        QFETCH(bool, sayi);
        const std::optional<double> sonuc = SayiDegeri(deger);
        QCOMPARE(sonuc.has_value(), sayi);
        if (sayi)
            QTEST(*sonuc, "beklenen");
    }

    void buyukHarf() { QCOMPARE(BuyukHarf(QStringLiteral("iğne ılık çay")), QStringLiteral("İĞNE ILIK ÇAY")); }
};

QTEST_GUILESS_MAIN(TstBicim)
#include "tst_bicim.moc"
