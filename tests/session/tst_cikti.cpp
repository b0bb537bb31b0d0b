#include "cikti_ekran.h"
#include "turkce.h"
#include "sayfa_gorunumu.h"
#include "yazici.h"

#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString turkce = u"Şişli Ağaç İğne Ünite"_s;

// A portrait page with a form under the text, then a landscape one.
Belge OrnekBelge()
{
    BellekCikti bellek;
    Yazici p(&bellek);
    Zemin zemin;
    zemin.kutular.append({QRectF(0, 0, 8000, 1500), 30});
    zemin.etiketler.append({QRectF(100, 100, 7800, 600), u"TAŞINIR İŞLEM FİŞİ"_s, 12, true,
                            Qt::AlignHCenter | Qt::AlignTop});
    p.ZeminCiz(zemin);
    p.CurrentY = 2000;
    p.Print({Tab(2), turkce});
    p.Orientation = 2;
    p.NewPage();
    p.Print({u"Yatay sayfa"_s});
    p.EndDoc();
    return bellek.belgeler.first();
}

// Page sizes in points, in page order, from the PDF's media boxes.
QList<QSizeF> SayfaBoylari(const QString& dosya)
{
    QFile pdf(dosya);
    if (!pdf.open(QIODevice::ReadOnly))
        return {};
    const QByteArray icerik = pdf.readAll();
    if (!icerik.startsWith("%PDF-"))
        return {};
    QList<QSizeF> boylar;
    static const QRegularExpression kutu(u"/MediaBox \\[0 0 ([\\d.]+) ([\\d.]+)\\]"_s);
    for (const QRegularExpressionMatch& m : kutu.globalMatch(QString::fromLatin1(icerik)))
        boylar.append(QSizeF(qRound(m.captured(1).toDouble()), qRound(m.captured(2).toDouble())));
    return boylar;
}

const QList<QSizeF> dikeyYatay{QSizeF(595, 842), QSizeF(842, 595)};

}

class TstCikti : public QObject
{
    Q_OBJECT

    QTemporaryDir m_klasor;

private slots:
    void pdf()
    {
        const QString dosya = m_klasor.filePath(u"belge.pdf"_s);
        PdfCikti(dosya).Yaz(OrnekBelge());
        QCOMPARE(SayfaBoylari(dosya), dikeyYatay);

        const QString pdftotext = QStandardPaths::findExecutable(u"pdftotext"_s);
        if (pdftotext.isEmpty())
            QSKIP("pdftotext is not installed");
        QProcess surec;
        surec.start(pdftotext, {u"-enc"_s, u"UTF-8"_s, dosya, u"-"_s});
        QVERIFY(surec.waitForFinished());
        const QString metin = QString::fromUtf8(surec.readAllStandardOutput());
        for (const QString& yazi : {turkce, u"TAŞINIR İŞLEM FİŞİ"_s, u"Yatay sayfa"_s})
            QVERIFY2(metin.contains(yazi), qPrintable(metin));
    }

    void pdfYazilamaz()
    {
        PdfCikti cikti(m_klasor.filePath(u"olmayan/klasor/belge.pdf"_s));
        QVERIFY_THROWS_EXCEPTION(YaziciHatasi, cikti.Yaz(OrnekBelge()));
    }

    void pdfTamam_data()
    {
        QTest::addColumn<QByteArray>("icerik");
        QTest::addColumn<bool>("tamam");
        QTest::newRow("tam") << QByteArray("%PDF-1.4\n1 0 obj\n%%EOF") << true;
        QTest::newRow("sonda satır sonları") << QByteArray("%PDF-1.4\n%%EOF\r\n \n") << true;
        QTest::newRow("boş") << QByteArray() << false;
        QTest::newRow("yarıda kesilmiş") << QByteArray("%PDF-1.4\n%%EOF\n1 0 obj") << false;
        QTest::newRow("başlıksız") << QByteArray("1 0 obj\n%%EOF") << false;
    }
    void pdfTamam()
    {
        QFETCH(QByteArray, icerik);
        const QString dosya = m_klasor.filePath(u"denetlenen.pdf"_s);
        QFile f(dosya);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(icerik);
        f.close();
        QTEST(PdfTamam(dosya), "tamam");
    }

    // The printer path, through a QPrinter that writes a file.
    void yaziciCikti()
    {
        const QString dosya = m_klasor.filePath(u"yazici.pdf"_s);
        QPrinter yazici(QPrinter::HighResolution);
        yazici.setOutputFormat(QPrinter::PdfFormat);
        yazici.setOutputFileName(dosya);
        YaziciCikti cikti(yazici);
        QVERIFY(cikti.Hazir());
        cikti.Yaz(OrnekBelge());
        QCOMPARE(SayfaBoylari(dosya), dikeyYatay);
    }

    // The preview shows every page and speaks Turkish once Qt's own texts are loaded.
    void onizleme()
    {
        QVERIFY(QtTurkcesiniYukle(*qApp));
        int gosterilen = -1;
        QString baslik;
        QTimer::singleShot(0, this, [&] {
            if (auto* pencere = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget())) {
                gosterilen = pencere->findChild<QPrintPreviewWidget*>()->pageCount();
                baslik = pencere->windowTitle();
                pencere->reject();
            }
        });
        OnizlemeCikti(nullptr).Yaz(OrnekBelge());
        QCOMPARE(gosterilen, 2);
        QCOMPARE(baslik, QCoreApplication::translate("QPrintPreviewDialog", "Print Preview"));
        QVERIFY2(baslik != QLatin1String("Print Preview"), qPrintable(baslik));
    }

    // The sheet is its paper at the zoom, never below a tenth.
    void gorunumBoyu_data()
    {
        QTest::addColumn<QPageLayout::Orientation>("yon");
        QTest::addColumn<double>("yakinlik");
        QTest::addColumn<double>("beklenenYakinlik");
        QTest::addColumn<QSizeF>("mm");
        QTest::newRow("dikey gercek boy") << QPageLayout::Portrait << 1.0 << 1.0 << QSizeF(210, 297);
        QTest::newRow("yatay yarim") << QPageLayout::Landscape << 0.5 << 0.5 << QSizeF(297, 210);
        QTest::newRow("sifir en kucuge") << QPageLayout::Portrait << 0.0 << 0.1 << QSizeF(210, 297);
    }
    void gorunumBoyu()
    {
        QFETCH(QPageLayout::Orientation, yon);
        QFETCH(double, yakinlik);
        QFETCH(double, beklenenYakinlik);
        QFETCH(QSizeF, mm);
        SayfaGorunumu gorunum;
        Sayfa sayfa;
        sayfa.yon = yon;
        gorunum.SayfaGoster(sayfa);
        gorunum.YakinlikAyarla(yakinlik);
        QCOMPARE(gorunum.Yakinlik(), beklenenYakinlik);
        const QSize boy = gorunum.widget()->size();
        const double en = mm.width() / 25.4 * gorunum.logicalDpiX() * beklenenYakinlik;
        const double boyu = mm.height() / 25.4 * gorunum.logicalDpiY() * beklenenYakinlik;
        QVERIFY2(qAbs(boy.width() - en) <= 1 && qAbs(boy.height() - boyu) <= 1,
                 qPrintable(u"%1x%2"_s.arg(boy.width()).arg(boy.height())));
    }

    // A thick rule drawn on the sheet lands where its twips say, past the margin.
    void gorunumCizer()
    {
        Sayfa sayfa;
        sayfa.zemin.cizgiler.append({QLineF(0, 1000, 6000, 1000), 120});
        SayfaGorunumu gorunum;
        gorunum.SayfaGoster(sayfa);
        const QImage resim = gorunum.widget()->grab().toImage();
        const double olcek = gorunum.logicalDpiX() / TwipInc;
        const auto renk = [&](double x, double y) {
            return QColor(resim.pixel(qRound((KenarTwip + x) * olcek), qRound((KenarTwip + y) * olcek)));
        };
        QCOMPARE(renk(3000, 1000), QColor(Qt::black));
        QCOMPARE(renk(3000, 1300), QColor(Qt::white));
        QCOMPARE(renk(3000, 1000 - KenarTwip), QColor(Qt::white));
    }
};

QTEST_MAIN(TstCikti)
#include "tst_cikti.moc"
