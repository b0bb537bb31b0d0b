#include "cikti.h"
#include "ekran_testi.h"
#include "fis_k.h"
#include "fis_kayit.h"
#include "fis_l.h"
#include "fis_listesi.h"
#include "grid_yazdir.h"
#include "klavye.h"
#include "modal_yanit.h"
#include "saat.h"
#include "satir_izgarasi.h"
#include "tarih_secici.h"

#include <QAbstractButton>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(FisListesi::Suzgec)

class TstFisListesi : public QObject, protected GeciciVeri
{
    Q_OBJECT

    QPointer<FIS_L> m_liste;

    CalismaBaglami baglam() const { return {u"2026"_s, u"3"_s, QString(), &veri()}; }

    void ac()
    {
        m_liste = new FIS_L(baglam(), u"G"_s);
        m_liste->show();
        Etkinlestir(m_liste);
    }
    template <typename T = QLineEdit>
    T* kontrol(const char* ad) const
    {
        return m_liste->findChild<T*>(QString::fromLatin1(ad));
    }
    ListeIzgarasi* izgara() const { return kontrol<ListeIzgarasi>("T"); }
    // A click on the mark of an option or of the tick box.
    void isaretle(const char* ad) const
    {
        auto* d = kontrol<QAbstractButton>(ad);
        QTest::mouseClick(d, Qt::LeftButton, {}, QPoint(6, d->height() / 2));
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        Veritabani& vt = veri().Ayniyat();
        const QString ekle = u"insert into FIS_B (FisNo, Tarih, FCins, TeslimAlan, Ozellik, BelgeSayi, "
                             "NeredenGeldigi) values (?, ?, ?, ?, ?, ?, ?)"_s;
        vt.Calistir(ekle, {1, "05.01.2026", "G", "Mehmet Kaya", "MAVİ", "A-12", "Ankara"});
        vt.Calistir(ekle, {2, "10.02.2026", "G", "Ayşe Işık", "KIRMIZI", "B-7", "İzmir"});
        vt.Calistir(ekle, {3, "01.03.2026", "G", "mehmet Öz", "MAVİ KALEM", "A-30", "Bursa"});
        vt.Calistir(ekle, {5, "20.03.2026", "G", "İlker Tan", "YEŞİL", "C-1", "ılgaz"});
        vt.Calistir(ekle, {6, "bozuk", "G", "Işıl Er", "SARI", "C-2", "Adana"});
        vt.Calistir(ekle, {4, "15.02.2026", "C", "Mehmet Kaya", "MAVİ", "A-12", "Ankara"});
    }
    void cleanup()
    {
        delete m_liste;
        Saat::Ayarla({});
    }

    // The statement: the last filled text filter replaces the number and
    // every filter before it; the dates frame what is left. The number
    // descending unless sorted otherwise; dates sort as the texts they are,
    // day first.
    void sorgu_data()
    {
        using S = FisListesi::Suzgec;
        // Number, receiver, description, document number, supplier; the
        // dates; the sort option and the tick.
        const auto suz = [](const QStringList& m, QDate bas = {}, QDate bit = {}, int sira = 0, bool artan = false) {
            return S{m.value(0), m.value(1), m.value(2), m.value(3), m.value(4), bas, bit, u"G"_s,
                     FisListesi::SiraSutunu(sira, S().SiraSutunu), artan};
        };
        QTest::addColumn<S>("suzgec");
        QTest::addColumn<QStringList>("beklenen");
        QTest::newRow("boş: türün tümü, azalan") << suz({}) << QStringList{"6", "5", "3", "2", "1"};
        QTest::newRow("numaradan başlar") << suz({"3abc"}) << QStringList{"6", "5", "3"};
        QTest::newRow("teslim alan numarayı düşürür") << suz({"3", "MEH"}) << QStringList{"3", "1"};
        QTest::newRow("özellik teslim alanı değiştirir") << suz({"", "Ayşe", "mavi"}) << QStringList{"3", "1"};
        QTest::newRow("belge sayı özelliği değiştirir") << suz({"", "", "mavi", "C-"}) << QStringList{"6", "5"};
        QTest::newRow("nereden geldiği en son") << suz({"", "Ayşe", "mavi", "B", "I"}) << QStringList{"5"};
        QTest::newRow("joker yazılan gibi") << suz({"", "%Kaya"}) << QStringList{"1"};
        QTest::newRow("başlama tarihi") << suz({}, {2026, 2, 10}) << QStringList{"5", "3", "2"};
        QTest::newRow("tarih aralığı") << suz({}, {2026, 1, 6}, {2026, 3, 1}) << QStringList{"3", "2"};
        QTest::newRow("süzgeç ve tarih") << suz({"", "", "mavi"}, {2026, 2, 1}) << QStringList{"3"};
        QTest::newRow("fiş no artan") << suz({}, {}, {}, 1, true) << QStringList{"1", "2", "3", "5", "6"};
        QTest::newRow("tarih metin sırası") << suz({}, {}, {}, 2, true) << QStringList{"3", "1", "2", "5", "6"};
        QTest::newRow("teslim alan azalan") << suz({}, {}, {}, 4) << QStringList{"3", "1", "5", "6", "2"};
        QTest::newRow("tutar öncekini korur") << suz({}, {}, {}, 6, true) << QStringList{"1", "2", "3", "5", "6"};
        QTest::newRow("nereden geldiği") << suz({}, {}, {}, 7, true) << QStringList{"6", "1", "3", "5", "2"};
    }
    void sorgu()
    {
        QFETCH(FisListesi::Suzgec, suzgec);
        const FisListesi::Komut k = FisListesi::Sorgu(suzgec);
        QStringList numaralar;
        for (const QStringList& satir : veri().Ayniyat().Satirlar(k.sql, k.degerler))
            numaralar << satir.at(0);
        QTEST(numaralar, "beklenen");
    }

    // The list opens up to the year's end, descending, every date whole;
    // typing, the options and the tick refill it at once. Yazdır prints it
    // as it stands.
    void ekrandanSuzme()
    {
        ac();
        QVERIFY(kontrol<TarihSecici>("Tarih")->Bos());
        QCOMPARE(kontrol<TarihSecici>("Tarih1")->Metin(), u"31.12.2026"_s);
        for (int sutun : {1, 4})
            QVERIFY(izgara()->columnWidth(sutun) > izgara()->fontMetrics().horizontalAdvance(u"31.12.2026"_s));
        QCOMPARE(IlkSutun(izgara()), (QStringList{"5", "3", "2", "1"}));
        QTest::keyClicks(kontrol("FisNo"), u"3"_s);
        QCOMPARE(IlkSutun(izgara()), (QStringList{"5", "3"}));

        BellekCikti cikti;
        m_liste->CiktiSec(&cikti);
        kontrol<QPushButton>("Command12")->click();
        QCOMPARE(cikti.belgeler.size(), 1);
        const Sayfa& s = cikti.belgeler[0].value(0);
        QCOMPARE(s.MetinNerede(10 * MmTwip, 5 * MmTwip), u"  Fiş Listesi    "_s);
        QCOMPARE(s.MetinNerede(5 * MmTwip, 20 * MmTwip), u"5"_s);
        QCOMPARE(s.MetinNerede(5 * MmTwip + 700, 25 * MmTwip), u"01.03.2026"_s);
        // The kind column is hidden and prints nothing; no voucher here has a
        // document date.
        QCOMPARE(s.yazilar.size(), 1 + 7 + 2 * 6);

        TurkceYaz(kontrol("TeslimAlan"), u"Ayşe"_s);
        QCOMPARE(IlkSutun(izgara()), (QStringList{"2"}));
        kontrol("TeslimAlan")->clear();
        kontrol("FisNo")->clear();
        isaretle("Op4");
        QCOMPARE(IlkSutun(izgara()), (QStringList{"3", "1", "5", "2"}));
        isaretle("Op6");
        isaretle("Check1");
        QCOMPARE(IlkSutun(izgara()), (QStringList{"2", "5", "1", "3"}));
        kontrol<TarihSecici>("Tarih1")->setDate(QDate(2026, 2, 28));
        QCOMPARE(IlkSutun(izgara()), (QStringList{"2", "1"}));
    }

    // Enter and a double click hand the row's number over and close the
    // list, an empty one an empty number; Esc closes it without a choice.
    void secim_data()
    {
        QTest::addColumn<int>("tus");
        QTest::addColumn<QString>("ozellik");
        QTest::addColumn<QStringList>("secilen");
        QTest::newRow("Enter") << int(Qt::Key_Return) << "" << QStringList{"2"};
        QTest::newRow("çift tıklama") << 0 << "" << QStringList{"2"};
        QTest::newRow("boş listede çift tıklama") << 0 << "yok" << QStringList{""};
        QTest::newRow("Esc") << int(Qt::Key_Escape) << "" << QStringList();
    }
    void secim()
    {
        QFETCH(int, tus);
        QFETCH(QString, ozellik);
        QFETCH(QStringList, secilen);
        ac();
        QSignalSpy sinyal(m_liste.data(), &FIS_L::FisSecildi);
        QTest::keyClicks(kontrol("Ozellik"), ozellik);
        QTest::keyClick(kontrol("Ozellik"), Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), izgara());
        const int satir = ozellik.isEmpty() ? 3 : 0;
        if (tus) {
            izgara()->SatirSec(satir);
            QTest::keyClick(izgara(), Qt::Key(tus));
        } else {
            CiftTikla(izgara(), satir);
        }
        QStringList gelen;
        for (const QList<QVariant>& s : sinyal)
            gelen << s.at(0).toString();
        QCOMPARE(gelen, secilen);
        QTRY_VERIFY(!m_liste);
    }

    // From the voucher screen: Liste opens one list of its kind, a double
    // click brings the voucher.
    void fisEkranindanSecim()
    {
        FisEkrani f;
        f.FisNo = u"7"_s, f.Tarih = u"12.03.2026"_s, f.FCins = f.Hangi = u"G"_s;
        f.CalisYil = u"2026"_s, f.CalisAy = u"3"_s, f.TeslimAlan = u"Zeki Demir"_s;
        f.Satirlar = {{"", "150 01 01 001", "A4 Kağıt", "BEYAZ", "PAKET", "10", "5", "", "", "1", "", "", "", "18",
                       "", "", ""}};
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [] { return true; }), KayitSonucu::Kaydedildi);

        auto fis = std::make_unique<FIS_K>(baglam());
        fis->KipAyarla({{"FCins", "G"}, {"Hangi", "G"}});
        fis->show();
        Etkinlestir(fis.get());
        auto* liste = fis->findChild<QPushButton*>(u"Liste"_s);
        liste->click();
        liste->click();
        QCOMPARE(fis->findChildren<FIS_L*>().size(), 1);
        m_liste = fis->findChild<FIS_L*>();
        QVERIFY(m_liste->isVisible());
        QCOMPARE(izgara()->TextMatrix(1, 0), u"7"_s);
        CiftTikla(izgara(), 1);
        QTRY_VERIFY(!m_liste);
        QCOMPARE(fis->findChild<QLineEdit*>(u"FisNo"_s)->text(), u"7"_s);
        QCOMPARE(fis->findChild<QLineEdit*>(u"Tarih"_s)->text(), u"12.03.2026"_s);
        auto* satirlar = fis->findChild<SatirIzgarasi*>(u"T"_s);
        QCOMPARE(satirlar->TextMatrix(1, FisSutun::Ozellik), u"BEYAZ"_s);
        QVERIFY(!fis->findChild<QLineEdit*>(u"Text3"_s)->text().isEmpty());

        // A voucher of another year is named, and the screen keeps its own.
        f.FisNo = u"30"_s, f.Tarih = u"05.06.2025"_s, f.CalisYil = u"2025"_s;
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [] { return true; }), KayitSonucu::Kaydedildi);
        liste->click();
        m_liste = fis->findChild<FIS_L*>();
        QTRY_VERIFY(m_liste->isVisible());
        ModalYanit tamam(u"Tamam"_s);
        for (int satir = 1; satir < izgara()->Rows(); ++satir)
            if (izgara()->TextMatrix(satir, 0) == u"30"_s)
                CiftTikla(izgara(), satir);
        QTRY_VERIFY(tamam.Goruldu());
        QVERIFY2(tamam.Metin().startsWith(u"30 nolu fiş 2025 yılına ait"_s), qPrintable(tamam.Metin()));
        QCOMPARE(fis->findChild<QLineEdit*>(u"FisNo"_s)->text(), u"7"_s);
        QCOMPARE(satirlar->TextMatrix(1, FisSutun::Ozellik), u"BEYAZ"_s);
    }
};

QTEST_MAIN(TstFisListesi)
#include "tst_fis_listesi.moc"
