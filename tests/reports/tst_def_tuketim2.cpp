#include "cikti.h"
#include "def_tuketim2.h"
#include "ekran_testi.h"
#include "fis_kayit.h"
#include "saat.h"
#include "tarih_secici.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString soru = u"  YENi Malzeme Dökümü Devam Edecek mi ?  "_s;
const QString bitti = u"  Bitti... "_s;
const QString bos = u" Kayıt Bulunamadı .. "_s;

// Answers the message boxes of a walk in turn: a question takes the next
// answer, any other box is closed with "Tamam". Keeps every box's text.
class Yanitlar
{
public:
    explicit Yanitlar(QStringList cevaplar = {}) : m_cevaplar(std::move(cevaplar))
    {
        QObject::connect(&m_zaman, &QTimer::timeout, [this] {
            auto* kutu = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!kutu || !kutu->isVisible())
                return;
            metinler << kutu->text();
            const bool soruMu = kutu->buttons().size() == 2;
            const QString dugme = soruMu && !m_cevaplar.isEmpty() ? m_cevaplar.takeFirst() : u"Tamam"_s;
            for (QAbstractButton* b : kutu->buttons())
                if (b->text() == dugme)
                    return b->click();
            kutu->reject();
        });
        m_zaman.start(5);
    }
    QStringList metinler;

private:
    QStringList m_cevaplar;
    QTimer m_zaman;
};

}

// The ledger screen as the store officer walks it. The ledger's figures and
// paper are the logic's; here the walk's questions, keys and outputs.
class TstDefTuketim2 : public QObject, protected EkranTesti<DefTuketim2>
{
    Q_OBJECT

    void fis(const QString& no, const QString& tarih, const QString& kod)
    {
        FisEkrani f;
        f.FisNo = no, f.Tarih = tarih, f.FCins = f.Hangi = u"G"_s, f.CalisYil = tarih.mid(6), f.CalisAy = u"3"_s;
        QStringList s(FisSutun::Sayi);
        s[FisSutun::HesapKod] = kod, s[FisSutun::Miktar] = u"2"_s, s[FisSutun::BirimFiyat] = u"5"_s;
        f.Satirlar = {s};
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [] { return true; }), KayitSonucu::Kaydedildi);
    }
    QTreeView* liste() const { return bul<QTreeView>(u"lstRapor"_s); }
    // A cell of lstRapor as it shows, rows from 0.
    QString hucre(int satir, int sutun) const { return liste()->model()->index(satir, sutun).data().toString(); }
    QString sinif() const { return bul<QLabel>(u"FCins2"_s)->text(); }
    QStringList yuru(const std::function<void()>& is, const QStringList& cevaplar = {})
    {
        Yanitlar y(cevaplar);
        is();
        Etkinlestir(m_ekran);
        return y.metinler;
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        // Two consumables with lines and one without; a durable class of 2020.
        for (const auto& [kod, ad] : {std::pair("150 01 01 001", "KAĞIT"), std::pair("150 01 01 002", "KALEM"),
                                      std::pair("150 01 01 003", "SİLGİ"), std::pair("255 01 01 001", "MASA")})
            veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi, Birimi) values (?, ?, 'ADET')"_s,
                                    {QString::fromUtf8(kod), QString::fromUtf8(ad)});
        fis(u"1"_s, u"02.01.2026"_s, u"150 01 01 001"_s);
        fis(u"2"_s, u"03.01.2026"_s, u"150 01 01 002"_s);
        fis(u"3"_s, u"04.05.2020"_s, u"255 01 01 001"_s);
        ac();
    }
    void cleanup()
    {
        delete m_ekran;
        Saat::Ayarla({});
    }

    void acilisTarihleriHangiden_data()
    {
        QTest::addColumn<QString>("hangi");
        QTest::addColumn<QString>("tarih");
        QTest::addColumn<QString>("ilkSinif");
        QTest::newRow("tüketim") << u"T"_s << u"01.01.2026"_s << u"KAĞIT"_s;
        // 01.01.1900 is the picker's blank: from the first record on.
        QTest::newRow("dayanıklı") << u"D"_s << QString() << u"MASA"_s;
    }
    void acilisTarihleriHangiden()
    {
        QFETCH(QString, hangi);
        QFETCH(QString, tarih);
        QCOMPARE(yuru([&] { m_ekran->HangiYaz(hangi); }, {u"Hayır"_s}), QStringList{soru});
        QCOMPARE(bul<TarihSecici>(u"Tarih"_s)->Metin(), tarih);
        QCOMPARE(bul<TarihSecici>(u"Tarih1"_s)->Metin(), u"14.03.2026"_s);
        QTEST(sinif(), "ilkSinif");
    }

    // Yes clears the list and goes on; No keeps the class on screen.
    void soruyaCevap_data() { CevapSatirlari(); }
    void soruyaCevap()
    {
        QFETCH(QString, cevap);
        const bool evet = cevap == u"Evet";
        const QStringList metinler = yuru([&] { m_ekran->HangiYaz(u"T"_s); }, {cevap, u"Hayır"_s});
        QCOMPARE(metinler, evet ? QStringList({soru, soru}) : QStringList{soru});
        QCOMPARE(sinif(), evet ? u"KALEM"_s : u"KAĞIT"_s);
        QCOMPARE(liste()->model()->rowCount(), 2);  // the line and the closing row
        QCOMPARE(hucre(0, Defter::SolFisNo), evet ? u"2"_s : u"1"_s);
    }

    // An empty class costs a message unless Check1; the walk ends with
    // "Bitti" and an empty list, and a walk past the last class finds none.
    void bosSiniflar_data()
    {
        QTest::addColumn<bool>("bosGosterme");
        QTest::newRow("mesajlı") << false;
        QTest::newRow("Check1") << true;
    }
    void bosSiniflar()
    {
        QFETCH(bool, bosGosterme);
        bul<QCheckBox>(u"Check1"_s)->setChecked(bosGosterme);
        const QStringList metinler = yuru([&] { m_ekran->HangiYaz(u"T"_s); }, {u"Evet"_s, u"Evet"_s});
        QCOMPARE(metinler, bosGosterme ? QStringList({soru, soru, bitti}) : QStringList({soru, soru, bos, bitti}));
        QCOMPARE(liste()->model()->rowCount(), 0);
        QCOMPARE(yuru([] { Tus(Qt::Key_F5); }), QStringList{u"  Malzeme Kaydı Bulunamadı .. "_s});
    }

    // F5 goes on after the class on screen; F4 as well, on the next page,
    // and prints it.
    void f5VeF4()
    {
        BellekCikti bellek;
        m_ekran->CiktiSec(&bellek);
        yuru([&] { m_ekran->HangiYaz(u"T"_s); }, {u"Hayır"_s});
        QCOMPARE(yuru([] { Tus(Qt::Key_F4); }, {u"Hayır"_s}), QStringList{soru});
        QCOMPARE(sinif(), u"KALEM"_s);
        QCOMPARE(bellek.belgeler.size(), 1);
        // The title of the class on the first page, the page number 2 on its band.
        const QList<SayfaYazisi>& yazilar = bellek.belgeler[0][0].yazilar;
        QVERIFY(std::any_of(yazilar.begin(), yazilar.end(), [](const SayfaYazisi& y) { return y.metin.startsWith(u"KALEM"_s); }));
        QCOMPARE(yuru([] { Tus(Qt::Key_F5); }), QStringList({bos, bitti}));
        QCOMPARE(sinif(), u"SİLGİ"_s);
        // Past the last class: the page number goes up, nothing is printed.
        const int sayfa = metin(u"SayfaNo"_s).toInt();
        QCOMPARE(yuru([] { Tus(Qt::Key_F4); }), QStringList{u"  Malzeme Kaydı Bulunamadı .. "_s});
        QCOMPARE(metin(u"SayfaNo"_s).toInt(), sayfa + 1);
        QCOMPARE(bellek.belgeler.size(), 1);
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"  Listede yazdırılacak satır yok."_s);
    }

    void escKapatirYuruyusteDurdurur()
    {
        // Every class empty and skipped silently: only Esc stops the walk.
        bul<TarihSecici>(u"Tarih1"_s)->GunYaz(QDate(2025, 12, 31));
        bul<QCheckBox>(u"Check1"_s)->setChecked(true);
        QTimer::singleShot(0, [] { Tus(Qt::Key_Escape); });
        QCOMPARE(yuru([] { Tus(Qt::Key_F5); }), QStringList());
        QVERIFY(m_ekran);
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"  Durduruldu."_s);
        Tus(Qt::Key_Escape);
        QTRY_VERIFY(!m_ekran);
    }

    // The list as it stands to the file the user names, its ending added.
    void csvDosyasi()
    {
        yuru([&] { m_ekran->HangiYaz(u"T"_s); }, {u"Hayır"_s});
        const QString dosya = klasor() + u"/defter"_s;
        QTimer zaman;
        connect(&zaman, &QTimer::timeout, [&] {
            if (auto* d = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
                zaman.stop();
                d->selectFile(dosya);
                static_cast<QDialog*>(d)->accept();
            }
        });
        zaman.start(5);
        const QStringList metinler = yuru([&] { bul<QPushButton>(u"CmdCsv"_s)->click(); });
        QCOMPARE(metinler, QStringList{u"Liste yazıldı:\n"_s + QDir::toNativeSeparators(dosya + u".csv"_s)});
        QFile f(dosya + u".csv"_s);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(f.readAll()).contains(u"KAĞIT"_s));
    }

    void boyutPaneliDaraltir()
    {
        auto* panel = bul<QWidget>(u"FR"_s);
        const int genis = panel->width();
        QTest::mouseClick(bul<QLabel>(u"Boyut"_s), Qt::LeftButton);
        QCOMPARE(bul<QLabel>(u"Boyut"_s)->text(), u" <<"_s);
        QTRY_VERIFY(panel->width() < genis);
        QTest::mouseDClick(panel, Qt::LeftButton);
        QCOMPARE(bul<QLabel>(u"Boyut"_s)->text(), u" Gizle >>"_s);
    }
};

QTEST_MAIN(TstDefTuketim2)
#include "tst_def_tuketim2.moc"
