#include "dusulen_l.h"
#include "dusum.h"
#include "dusum_l1.h"
#include "dusum_yaz.h"
#include "etkinlestir.h"
#include "fis_kayit.h"
#include "gecici_veri.h"
#include "klavye.h"
#include "liste_izgarasi.h"
#include "modal_yanit.h"
#include "saat.h"
#include "satir_izgarasi.h"
#include "veri.h"
#include "veritabani.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;

// The write-off screen as a store officer uses it. The record and the lists'
// statements are the logic's; here the keys, the focus and what the screen
// and its lists show.
class TstDusum : public QObject, protected GeciciVeri
{
    Q_OBJECT

    QPointer<Dusum> m_ekran;

    template <typename T = QLineEdit>
    T* kontrol(const char* ad) const
    {
        return m_ekran->findChild<T*>(QString::fromLatin1(ad));
    }
    SatirIzgarasi* izgara() const { return kontrol<SatirIzgarasi>("T"); }
    static QString odak() { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString(); }
    static void tus(int kod, Qt::KeyboardModifiers ek = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(kod), ek);
    }
    // Rows of a list screen's grid, the heading left out.
    template <typename Liste>
    static QStringList satirlar(Liste* liste, int sutun)
    {
        auto* t = liste->template findChild<ListeIzgarasi*>(u"T"_s);
        QStringList s;
        for (int r = 1; r < t->Rows(); ++r)
            s << t->TextMatrix(r, sutun);
        return s;
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        veri().Genel().Calistir(u"insert into URUN_K (HesapKod, MalzAdi, Birimi, KDV1) values (?, ?, ?, ?)"_s,
                                {"255 01 01 001", "Bilgisayar", "ADET", "20"});
        // An entry voucher with a durable line and a consumable one.
        FisEkrani f;
        f.FisNo = u"7"_s;
        f.Tarih = u"10.03.2026"_s;
        f.FCins = f.Hangi = u"G"_s;
        f.CalisYil = u"2026"_s, f.CalisAy = u"3"_s;
        f.Satirlar = {{"", "255 01 01 001", "", "MASAÜSTÜ", "ADET", "2", "100", "05.03.2026", "", "1", "", "", "",
                       "20", "", "", ""},
                      {"", "150 01 01 001", "", "KAĞIT", "PAKET", "10", "5", "05.03.2026", "", "1", "", "", "", "18",
                       "", "", ""}};
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [] { return true; }), KayitSonucu::Kaydedildi);
        m_ekran = new Dusum({u"2026"_s, u"3"_s, u"Örnek Okulu"_s, &veri()});
        m_ekran->show();
        Etkinlestir(m_ekran);
    }
    void cleanup()
    {
        delete m_ekran;
        Saat::Ayarla({});
    }

    void listedenSecipDusme()
    {
        QCOMPARE(m_ekran->windowTitle(), u"Kayıttan Düşme"_s);
        QCOMPARE(kontrol("FisNo")->text(), u"1"_s);
        izgara()->setFocus();
        tus(Qt::Key_F10);
        QPointer<Dusum_L1> malzeme = m_ekran->findChild<Dusum_L1*>();
        QVERIFY(malzeme);
        QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget*>(malzeme));
        // Durable goods only.
        QTRY_COMPARE(satirlar(malzeme.data(), 1), QStringList{u"MASAÜSTÜ"_s});
        // Down leads to the rows, Enter takes one.
        tus(Qt::Key_Down);
        QCOMPARE(QApplication::focusWidget(), malzeme->findChild<ListeIzgarasi*>(u"T"_s));
        tus(Qt::Key_Return);
        QTRY_VERIFY(!malzeme);
        Etkinlestir(m_ekran);
        QCOMPARE(izgara()->TextMatrix(1, DusumSutun::HesapKod), u"255 01 01 001"_s);
        QCOMPARE(izgara()->TextMatrix(1, DusumSutun::FisNo), u"7"_s);
        QCOMPARE(izgara()->Col(), int(DusumSutun::Miktar));
        QCOMPARE(odak(), u"T"_s);
        for (const QChar c : u"1"_s)
            TurkceYaz(QApplication::focusWidget(), QString(c));
        QCOMPARE(odak(), u"TE1"_s);
        tus(Qt::Key_Return);
        {
            ModalYanit tamam(u"Tamam"_s);
            tus(Qt::Key_F1);
            QCOMPARE(tamam.Metin(), u"   Kayıt Tamam..   "_s);
        }
        Etkinlestir(m_ekran);
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"     Kayıt Yapıldı ..   "_s);

        // F2 shows the minutes of what the screen holds.
        tus(Qt::Key_F2);
        auto* tutanak = m_ekran->findChild<DusumYaz*>();
        QVERIFY(tutanak);
        QCOMPARE(tutanak->Goruntu().MetinNerede(2200, 2840), u"MASAÜSTÜ"_s);
        tutanak->close();
        Etkinlestir(m_ekran);

        // The line left what can be written off, the write-off is listed.
        tus(Qt::Key_F10);
        malzeme = m_ekran->findChild<Dusum_L1*>();
        QVERIFY(malzeme);
        QTRY_COMPARE(satirlar(malzeme.data(), 1), QStringList());
        malzeme->close();
        Etkinlestir(m_ekran);
        kontrol<QPushButton>("Command3")->click();
        auto* liste = m_ekran->findChild<Dusulen_L*>();
        QVERIFY(liste);
        QTRY_COMPARE(satirlar(liste, 3), QStringList{u"1"_s});
    }

    // Esc blanks the line box, hides the movement list, and closes the
    // screen anywhere else.
    void escTusu()
    {
        izgara()->setFocus();
        izgara()->HucreSec(1, DusumSutun::Ozellik);
        TurkceYaz(QApplication::focusWidget(), u"x"_s);
        tus(Qt::Key_Escape);
        QCOMPARE(izgara()->TextMatrix(1, DusumSutun::Ozellik), QString());
        QCOMPARE(odak(), u"T"_s);
        izgara()->HucreYaz(1, DusumSutun::HesapKod, u"255 01 01 001"_s);
        izgara()->HucreSec(1, DusumSutun::HesapKod);
        izgara()->setFocus();
        tus(Qt::Key_F9);
        QCOMPARE(odak(), u"L3"_s);
        tus(Qt::Key_Escape);
        QVERIFY(!kontrol<ListeIzgarasi>("L3")->isVisible());
        QVERIFY(m_ekran);
        tus(Qt::Key_Escape);
        QTRY_VERIFY(!m_ekran);
    }
};

QTEST_MAIN(TstDusum)
#include "tst_dusum.moc"
