#include "hata.h"
#include "rapor_belgesi.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TstRaporTabloDisa : public QObject
{
    Q_OBJECT

    QTemporaryDir m_klasor;

    static RaporTablosu tablo()
    {
        RaporTablosu t;
        t.baslik = u"DAYANIKLI TAŞINIRLAR DEFTERİ"_s;
        t.ustBilgi = {{{2, u" İli "_s}, {80, u"Kodu : 06"_s}}, {{2, u"Okul"_s}}};
        t.sutunlar = {{u"Sıra"_s, 600, Qt::AlignRight, true}, {u"Adı"_s, 2400}, {u"Tutar"_s, 1440, Qt::AlignRight, true}};
        t.satirlar = {{SatirTuru::Kayit, {u"7"_s, u"Masa; \"büyük\""_s, u"1.234,50"_s}},
                      {SatirTuru::Kapanis, {u""_s, u"Toplam"_s, u"SüreGelen"_s}}};
        return t;
    }

    // Two tables in one document.
    using Acan = std::function<std::unique_ptr<RaporBelgesi>(const QString&)>;

    QString yaz(const Acan& belgesi, const QString& ad)
    {
        const auto belge = belgesi(m_klasor.filePath(ad));
        belge->Ekle(tablo());
        belge->Ekle(tablo());
        belge->Bitir();
        return m_klasor.filePath(ad);
    }

    // The cells of the sheet by reference: numbers as they stand, texts
    // behind a quote.
    static QMap<QString, QString> hucreler(const QString& dosya, const QString& sayfa = u"sheet1"_s)
    {
        QProcess unzip;
        unzip.start(u"unzip"_s, {u"-p"_s, dosya, u"xl/worksheets/"_s + sayfa + u".xml"_s});
        unzip.waitForFinished();
        QXmlStreamReader xml(unzip.readAllStandardOutput());
        QMap<QString, QString> sonuc;
        QString hucre, on;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == u"c") {
                hucre = xml.attributes().value(u"r"_s).toString();
                on = xml.attributes().value(u"t"_s) == u"inlineStr" ? u"'"_s : QString();
            } else if (xml.name() == u"v" || xml.name() == u"t") {
                sonuc[hucre] = on + xml.readElementText();
            }
        }
        return sonuc;
    }

private slots:
    void csvHucreleriOlduguGibiYazar()
    {
        const QByteArray bir = u"DAYANIKLI TAŞINIRLAR DEFTERİ\r\nİli;Kodu : 06\r\nOkul\r\nSıra;Adı;Tutar\r\n"
                               "7;\"Masa; \"\"büyük\"\"\";1.234,50\r\n;Toplam;SüreGelen\r\n"_s.toUtf8();
        QFile f(yaz(RaporBelgeleri::Csv, u"d.csv"_s));
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(f.readAll(), "\xEF\xBB\xBF" + bir + "\r\n" + bir);
    }

    void xlsxTutarlariSayiOlarakYazar()
    {
        const auto h = hucreler(yaz(RaporBelgeleri::Xlsx, u"d.xlsx"_s));
        QCOMPARE(h.value(u"A5"_s), u"7"_s);
        QCOMPARE(h.value(u"C5"_s), u"1234.5"_s);
        QCOMPARE(h.value(u"C6"_s), u"'SüreGelen"_s);
        // The second table after one empty row; empty cells write nothing.
        QCOMPARE(h.value(u"A8"_s), u"'DAYANIKLI TAŞINIRLAR DEFTERİ"_s);
        QCOMPARE(h.size(), 2 * 12);
    }

    // Each sheet starts at its first row; the name loses the characters a
    // sheet may not have, and the sheet asked to be in front is the one
    // the book opens on.
    void xlsxKitabiSayfaSayfaYazar()
    {
        const QString dosya = m_klasor.filePath(u"k.xlsx"_s);
        const auto kitap = RaporBelgeleri::Xlsx(dosya);
        kitap->YeniSayfa(u"TMY-13"_s);
        kitap->Ekle(tablo());
        kitap->YeniSayfa(u"Özet: 2026/1"_s, true);
        kitap->Ekle(tablo());
        kitap->Bitir();
        QCOMPARE(hucreler(dosya, u"sheet2"_s), hucreler(dosya, u"sheet1"_s));
        QCOMPARE(hucreler(dosya, u"sheet2"_s).value(u"A1"_s), u"'DAYANIKLI TAŞINIRLAR DEFTERİ"_s);
        QProcess unzip;
        unzip.start(u"unzip"_s, {u"-p"_s, dosya, u"xl/workbook.xml"_s});
        unzip.waitForFinished();
        const QString kitapXml = QString::fromUtf8(unzip.readAllStandardOutput());
        QVERIFY(kitapXml.contains(u"name=\"TMY-13\""_s));
        QVERIFY(kitapXml.contains(u"name=\"Özet- 2026-1\""_s));
        QVERIFY(kitapXml.contains(u"activeTab=\"1\""_s));
    }

    void yazilamayanBelgeIzBirakmaz()
    {
        QVERIFY_THROWS_EXCEPTION(Hata, RaporBelgeleri::Csv(m_klasor.filePath(u"yok/d.csv"_s)));
        QVERIFY_THROWS_EXCEPTION(Hata, RaporBelgeleri::Xlsx(m_klasor.filePath(u"yok/d.xlsx"_s)));
        // A folder in the target's place fails the rename after the whole
        // file was written; the temporary file goes.
        QTemporaryDir klasor;
        QDir(klasor.path()).mkdir(u"d"_s);
        for (const Acan& belge : {Acan(RaporBelgeleri::Csv), Acan(RaporBelgeleri::Xlsx)}) {
            auto b = belge(klasor.filePath(u"d"_s));
            b->Ekle(tablo());
            QVERIFY_THROWS_EXCEPTION(Hata, b->Bitir());
            b.reset();
            // Dropped before Bitir, nothing is left.
            belge(klasor.filePath(u"e"_s))->Ekle(tablo());
            QCOMPARE(QDir(klasor.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"d"_s});
        }
    }
};

QTEST_GUILESS_MAIN(TstRaporTabloDisa)
#include "tst_rapor_tablo_disa.moc"
