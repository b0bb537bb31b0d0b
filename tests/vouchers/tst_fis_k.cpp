#include "cikti.h"
#include "ekran_testi.h"
#include "fis_k.h"
#include "fis_yaz.h"
#include "grid_yazdir.h"
#include "istek_yaz.h"
#include "klavye.h"
#include "modal_yanit.h"
#include "saat.h"
#include "satir_izgarasi.h"
#include "sinif_tani.h"
#include "zimmet_yaz.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <variant>

using namespace Qt::StringLiterals;
using namespace FisSutun;

class TstFisK : public QObject, protected EkranTesti<FIS_K>
{
    Q_OBJECT

    BellekCikti m_cikti;

    static QVariantMap giris() { return {{"ilk1", "1"}, {"FCins", "G"}, {"Hangi", "G"}}; }
    static QVariantMap cikis()
    {
        return {{"Label2", "Ambardan Çıkış"}, {"ilk1", "1"}, {"FCins", "C"}, {"Hangi", "C"}, {"CikisGizle", true}};
    }

    // Compares the named fields of the first record that matches.
    void alanlar(const QString& tablo, const QString& kosul, const QVariantMap& beklenen)
    {
        QSqlQuery q = veri().Ayniyat().Sorgu(u"select * from "_s + tablo + u' ' + kosul);
        QVERIFY(q.next());
        for (auto i = beklenen.cbegin(); i != beklenen.cend(); ++i)
            QCOMPARE(q.value(i.key()).toString(), i.value().toString());
    }
    int say(const QString& tablo)
    {
        QSqlQuery q = veri().Ayniyat().Sorgu(u"select count(*) from "_s + tablo);
        return q.next() ? q.value(0).toInt() : -1;
    }
    // A saved voucher 1 of kind G with a line on rows 1 and 2.
    void kayitliFis()
    {
        FisEkrani f;
        f.FisNo = u"1"_s, f.Tarih = u"10.03.2026"_s, f.FCins = f.Hangi = u"G"_s;
        f.CalisYil = u"2026"_s, f.CalisAy = u"3"_s, f.TeslimAlan = u"Mehmet Kaya"_s;
        f.Satirlar = {{"", "150 01 01 001", "", "MAVİ", "PAKET", "10", "5", "05.03.2026", "3", "1", "", "", "",
                       "18", "", "", ""},
                      {"", "255 01 01 001", "", "MASAÜSTÜ", "ADET", "2", "100", "05.03.2026", "", "1", "", "", "",
                       "20", "", "", ""}};
        QCOMPARE(FisKayit::Kaydet(veri().Ayniyat(), f, [] { return true; }), KayitSonucu::Kaydedildi);
    }

    void ac(const QVariantMap& kip = giris(), const QString& ay = u"3"_s)
    {
        m_ekran = new FIS_K({u"2026"_s, ay, u"Örnek Okulu"_s, &veri()});
        m_ekran->CiktiSec(&m_cikti);
        m_ekran->KipAyarla(kip);
        m_ekran->show();
        etkinlestir();
    }
    void etkinlestir() { Etkinlestir(m_ekran); }
    template <typename T = QLineEdit>
    T* kontrol(const char* ad) const
    {
        return bul<T>(QString::fromLatin1(ad));
    }
    SatirIzgarasi* izgara() const { return kontrol<SatirIzgarasi>("T"); }
    QString hucre(int satir, int sutun) const { return izgara()->TextMatrix(satir, sutun); }
    QStringList hucreler(int satir, std::initializer_list<int> sutunlar) const
    {
        QStringList s;
        for (int sutun : sutunlar)
            s << hucre(satir, sutun);
        return s;
    }
    QStringList metinler(std::initializer_list<const char*> adlar) const
    {
        QStringList s;
        for (const char* ad : adlar)
            s << kontrol(ad)->text();
        return s;
    }
    // Puts the grid's current cell somewhere to start a keyed case from,
    // and types there.
    void hucreyeGit(int satir, int sutun, const QString& metin = {})
    {
        izgara()->setFocus();
        izgara()->HucreSec(satir, sutun);
        yaz(metin);
    }
    // Types key by key into whatever has the focus at each key.
    static void yaz(const QString& metin)
    {
        for (const QChar c : metin)
            TurkceYaz(QApplication::focusWidget(), QString(c));
    }
    // Presses keys and types texts, in turn; then checks where the focus is.
    static void bas(std::initializer_list<std::variant<int, QString>> adimlar, const QString& sonOdak = {})
    {
        for (const auto& a : adimlar)
            std::holds_alternative<int>(a) ? Tus(std::get<int>(a)) : yaz(std::get<QString>(a));
        if (!sonOdak.isNull())
            QCOMPARE(Odak(), sonOdak);
    }
    // Runs the action, answers its message box and gives the box's text.
    template <typename F>
    QString yanitla(const QString& dugme, F eylem)
    {
        QString metin;
        {
            ModalYanit y(dugme);
            eylem();
            metin = y.Metin();
        }
        etkinlestir();
        return metin;
    }
    // Picks the item of an open combo list by moving down to it.
    static void listedenSec(int sira)
    {
        auto* kutu = qobject_cast<QComboBox*>(QApplication::focusWidget());
        QVERIFY(kutu);
        Tus(Qt::Key_F4);
        QTRY_VERIFY(kutu->view()->isVisible());
        kutu->view()->setCurrentIndex(kutu->model()->index(0, 0));
        for (int i = 0; i < sira; ++i)
            QTest::keyClick(kutu->view(), Qt::Key_Down);
        QTest::keyClick(kutu->view(), Qt::Key_Return);
    }

private slots:
    void init()
    {
        Saat::Ayarla(QDate(2026, 3, 14));
        Yenile();
        sql(u"insert into URUN_K (HesapKod, MalzAdi, Birimi, KDV1) values "
            "('150 01 01 001', 'A4 Kağıt', 'PAKET', '18'), ('255 01 01 001', 'Bilgisayar', 'ADET', '20')"_s);
        sql(u"insert into Unite_K (UniteKod, UniteAd) values ('3', 'Muhasebe'), ('5', 'Kütüphane')"_s);
        m_cikti.belgeler.clear();
    }
    void cleanup()
    {
        delete m_ekran;
        Saat::Ayarla({});
    }

    void girisFisiKlavyeyle()
    {
        ac();
        QCOMPARE(kontrol("FisNo")->text(), u"1"_s);
        QCOMPARE(Odak(), u"FisNo"_s);
        Tus(Qt::Key_Return);
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"   Kayıt Bulunamadı  ..  "_s);
        QCOMPARE(Odak(), u"Tarih"_s);
        QCOMPARE(kontrol("Tarih")->text(), u"14.03.2026"_s);
        bas({Qt::Key_Return, Qt::Key_Down, u"12"_s, Qt::Key_Return}, u"TeslimAlan"_s);
        bas({u"Ayşe Işık"_s, Qt::Key_Return, u"Fatura"_s, Qt::Key_Return, u"DKR1"_s, Qt::Key_Up}, u"BelgeTur"_s);
        bas({Qt::Key_Down, Qt::Key_Return, u"Deniz Kırtasiye"_s, Qt::Key_Return}, u"T"_s);

        // Line 1: the class by its code, the description typed in lower case.
        bas({Qt::Key_Right, u"150 01 01 001"_s}, u"HesKod"_s);
        bas({Qt::Key_Return}, u"T"_s);
        QCOMPARE(izgara()->Col(), int(MalzAdi));
        QCOMPARE(hucreler(1, {HesapKod, MalzAdi}), QStringList({u"150 01 01 001"_s, u"A4 KAĞIT"_s}));
        bas({Qt::Key_Return}, u"Detay3"_s);
        Tus(Qt::Key_Return);
        QCOMPARE(izgara()->Col(), int(Ozellik));
        QCOMPARE(hucre(1, Birimi), QString());
        bas({u"80 gr beyaz, ılık"_s}, u"TE1"_s);
        QCOMPARE(hucre(1, Ozellik), u"80 GR BEYAZ, ILIK"_s);
        Tus(Qt::Key_Return);
        QCOMPARE(izgara()->Col(), int(Birimi));
        QCOMPARE(hucre(1, Birimi), u"ADET"_s);
        bas({Qt::Key_Right, u"10"_s, Qt::Key_Return, u"125.50"_s, Qt::Key_Return});
        QCOMPARE(izgara()->Col(), int(BelgeTarih));
        // Any key on the date column gives today's date in the editor.
        bas({u"x"_s}, u"TDate"_s);
        QCOMPARE(hucre(1, BelgeTarih), u"14.03.2026"_s);
        yaz(u"05"_s);
        QCOMPARE(hucre(1, BelgeTarih), u"05.03.2026"_s);
        bas({Qt::Key_Return}, u"T"_s);
        bas({Qt::Key_Right, u"3"_s}, u"UniteAd"_s);
        QCOMPARE(hucre(1, Unite), u"3"_s);
        bas({Qt::Key_Right, Qt::Key_Right, u"9"_s}, u"IslemTur"_s);
        listedenSec(0);
        QCOMPARE(hucre(1, IslemTur), u"1"_s);
        bas({Qt::Key_Right, Qt::Key_Right, u"2"_s, Qt::Key_Return, u"ayşe demir"_s, Qt::Key_Return});

        // Line 2: the class picked by its name.
        Tus(Qt::Key_Down);
        Tus(Qt::Key_Left, Qt::ControlModifier);
        bas({Qt::Key_Return}, u"Detay3"_s);
        listedenSec(1);
        QCOMPARE(hucreler(2, {HesapKod, MalzAdi, KDV}), QStringList({u"255 01 01 001"_s, u"Bilgisayar"_s, u"20"_s}));
        QCOMPARE(izgara()->Col(), int(Ozellik));
        QCOMPARE(Odak(), u"T"_s);

        Tus(Qt::Key_F1);
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"        Kayıt Yapıldı ..   "_s);
        QCOMPARE(Odak(), u"FisNo"_s);
        alanlar(u"FIS_B"_s, u"where FisNo = 1"_s,
                {{"FCins", "G"}, {"KabulSayi", "12"}, {"TeslimAlan", "Ayşe Işık"}, {"BelgeTur", "Fatura"},
                 {"BelgeSayi", "DKR1"}, {"NeredenGeldigi", "Deniz Kırtasiye"}});
        alanlar(u"FIS"_s, u"where Satir = 1"_s,
                {{"HesapKod", "150 01 01 001"}, {"Ozellik", "80 GR BEYAZ, ILIK"}, {"Birimi", "ADET"},
                 {"Miktar", "10"}, {"BirimFiyat", "125.50"}, {"BelgeTarih", "05.03.2026"}, {"Unite", "3"},
                 {"IslemTur", "1"}, {"Cikan", "2"}, {"KimeVerildigi", "AYŞE DEMİR"}});
        // The second line never reached column 4; its date is today's.
        alanlar(u"FIS"_s, u"where Satir = 2"_s, {{"Birimi", ""}, {"KDV", "20"}});
        QCOMPARE(hucre(2, BelgeTarih), u"14.03.2026"_s);
    }

    // A saved voucher fetched by its number: its head and lines, its sums,
    // its slips; the steps to the next, clearing and deleting.
    void getirTemizleAdimSil()
    {
        kayitliFis();
        ac();
        QCOMPARE(kontrol("FisNo")->text(), u"2"_s);
        bas({Qt::Key_Backspace, u"1"_s, Qt::Key_Return});
        QCOMPARE(kontrol<QComboBox>("TeslimAlan")->currentText(), u"Mehmet Kaya"_s);
        QCOMPARE(hucre(2, Ozellik), u"MASAÜSTÜ"_s);
        QCOMPARE(kontrol<QLabel>("Label19")->text(), u"SatınAlma"_s);

        // The sums are the logic's; here when the screen takes them: with
        // the voucher, and for a typed line when column 5 or 6 is entered.
        QCOMPARE(metinler({"Text2", "Text3"}), QStringList({u"12"_s, u"250"_s}));
        QCOMPARE(kontrol("Text1")->text().trimmed(), u"0"_s);
        hucreyeGit(3, Miktar);
        bas({u"3"_s, Qt::Key_Return});
        QCOMPARE(izgara()->Col(), int(BirimFiyat));
        QCOMPARE(kontrol("Text2")->text(), u"15"_s);
        bas({u"2,5"_s, Qt::Key_Return});
        QCOMPARE(kontrol("Text3")->text(), u"250"_s);
        hucreyeGit(4, BirimFiyat);
        QCOMPARE(kontrol("Text3")->text(), u"257,5"_s);

        // The custody slip names the unit of line 1 wherever the cursor
        // stands, the VAT rates filled; the request slip carries the kind.
        hucreyeGit(2, Ozellik);
        kontrol<QPushButton>("Zimmet")->click();
        auto* zimmet = m_ekran->findChild<ZimmetYaz*>();
        QVERIFY(zimmet);
        QCOMPARE(zimmet->Goruntu().MetinNerede(2100, 1770), u"Muhasebe"_s);
        QCOMPARE(hucre(3, KDV), u"18"_s);
        etkinlestir();
        Tus(Qt::Key_F7);
        auto* istek = m_ekran->findChild<IstekYaz*>();
        QVERIFY(istek);
        QCOMPARE(istek->Goruntu().MetinNerede(8700, 280), u"G-1"_s);
        etkinlestir();

        // Page Up on 1 does nothing; past the last the screen empties, its
        // sums too, and the number stays.
        kontrol("FisNo")->setFocus();
        Tus(Qt::Key_PageUp);
        QCOMPARE(kontrol("FisNo")->text(), u"1"_s);
        QCOMPARE(hucre(1, HesapKod), u"150 01 01 001"_s);
        Tus(Qt::Key_PageDown);
        QCOMPARE(kontrol("FisNo")->text(), u"2"_s);
        QCOMPARE(hucre(1, HesapKod), QString());
        QCOMPARE(metinler({"Text2", "Text3"}), QStringList({u"0"_s, u"0"_s}));
        QCOMPARE(kontrol<QComboBox>("TeslimAlan")->currentText(), QString());
        Tus(Qt::Key_Home);
        QCOMPARE(hucre(1, Ozellik), u"MAVİ"_s);

        Tus(Qt::Key_F3);
        QCOMPARE(kontrol("FisNo")->text(), u"2"_s);
        QCOMPARE(hucre(1, HesapKod), QString());
        QCOMPARE(Odak(), u"FisNo"_s);

        kontrol("FisNo")->setText(u"1"_s);
        {
            ModalYanit hayir(u"Hayır"_s);
            Tus(Qt::Key_F5);
            QCOMPARE(hayir.Metin(), u"Bu Fişi Silmek istiyor musunuz ?"_s);
            QCOMPARE(hayir.Baslik(), u" Siliniyor. "_s);
        }
        etkinlestir();
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"   Fiş Silinecek ..  "_s);
        QCOMPARE(say(u"FIS"_s), 2);
        QVERIFY(!yanitla(u"Evet"_s, [] { Tus(Qt::Key_F5); }).isEmpty());
        QCOMPARE(say(u"FIS"_s), 0);
        QCOMPARE(say(u"FIS_B"_s), 0);
        QCOMPARE(m_ekran->DurumSatiri()->text(), u"   Fiş Silindi .."_s);
    }

    void bosNumaraVeAySorusu()
    {
        ac(giris(), u"2"_s);
        kontrol("FisNo")->clear();
        QCOMPARE(yanitla(u"Tamam"_s, [] { Tus(Qt::Key_Return); }), u"Bir Fiş No girmek zorundasınız.."_s);
        QCOMPARE(Odak(), u"FisNo"_s);
        yaz(u"4"_s);
        hucreyeGit(1, Ozellik, u"x"_s);
        // No code on the first line: nothing is saved and nothing said.
        Tus(Qt::Key_F1);
        QCOMPARE(say(u"FIS_B"_s), 0);
        hucreyeGit(1, HesapKod, u"150"_s);
        QVERIFY(yanitla(u"Hayır"_s, [] { Tus(Qt::Key_F1); })
                    .startsWith(u" Bilgisayar Tarihi, Çalışılan Aydan Farklı."_s));
        QCOMPARE(say(u"FIS_B"_s), 0);
    }

    // The columns Enter goes to are the logic's; here the editor each one
    // gets and where it stands.
    void gridEnter_data()
    {
        QTest::addColumn<int>("sutun");
        QTest::addColumn<QString>("fiyat");
        QTest::addColumn<int>("yeniSutun");
        QTest::addColumn<QString>("editor");
        QTest::addColumn<QString>("tarih");
        QTest::newRow("3 → 5") << int(Ozellik) << "" << int(Miktar) << "TE1" << "";
        QTest::newRow("0 → 2") << int(Sira) << "" << int(MalzAdi) << "Detay3" << "";
        QTest::newRow("price 5") << int(BirimFiyat) << "5" << int(Unite) << "UniteAd" << "İlçe.Verilen";
    }
    void gridEnter()
    {
        QFETCH(int, sutun);
        QFETCH(QString, fiyat);
        ac();
        izgara()->HucreYaz(2, BirimFiyat, fiyat);
        hucreyeGit(2, sutun);
        Tus(Qt::Key_Return);
        QCOMPARE(izgara()->Row(), 2);
        QTEST(izgara()->Col(), "yeniSutun");
        QTEST(Odak(), "editor");
        QTEST(hucre(2, BelgeTarih), "tarih");
        const QRect alan = izgara()->HucreAlani();
        const QPoint orta = izgara()->viewport()->mapTo(m_ekran, alan.center());
        const QWidget* odakta = QApplication::focusWidget();
        QVERIFY(QRect(odakta->mapTo(m_ekran, QPoint()), odakta->size()).contains(orta));
    }

    void satirKutusuTuslari()
    {
        ac();
        // The arrow reaches the 25th line and no further, nor does a key past
        // the last column.
        hucreyeGit(24, Unite, u"3"_s);
        QCOMPARE(yanitla(u"Tamam"_s, [] { Tus(Qt::Key_Down); }), QString());
        QCOMPARE(izgara()->Row(), 25);
        yaz(u"3"_s);
        QCOMPARE(yanitla(u"Tamam"_s, [] { Tus(Qt::Key_Down); }), u"Bir fişe en çok 25 satır yazılabilir."_s);
        QCOMPARE(izgara()->Row(), 25);
        hucreyeGit(25, OzelKod);
        QCOMPARE(yanitla(u"Tamam"_s, [] { yaz(u"a"_s); }), u"Bir fişe en çok 25 satır yazılabilir."_s);
        QCOMPARE(izgara()->Row(), 25);
        QCOMPARE(hucre(25, OzelKod), QString());

        hucreyeGit(3, Miktar);
        bas({u"7"_s, Qt::Key_Up});
        QCOMPARE(izgara()->Row(), 2);
        QCOMPARE(Odak(), u"T"_s);
        bas({u"a"_s, Qt::Key_Right});
        QCOMPARE(izgara()->Col(), int(BirimFiyat));
        bas({u"b"_s, Qt::Key_Left, Qt::Key_Down});
        QCOMPARE(QPoint(izgara()->Row(), izgara()->Col()), QPoint(3, Miktar));
        QCOMPARE(hucre(3, Miktar), u"7"_s);
        QCOMPARE(hucreler(2, {Miktar, BirimFiyat}), QStringList({u"A"_s, u"B"_s}));
        // A key on a filled cell starts it afresh; Esc blanks it.
        yaz(u"12"_s);
        QCOMPARE(hucre(3, Miktar), u"12"_s);
        Tus(Qt::Key_Escape);
        QCOMPARE(hucre(3, Miktar), QString());
        QCOMPARE(Odak(), u"T"_s);
        bas({Qt::Key_Escape}, u"FisNo"_s);
        Tus(Qt::Key_Escape);
        QTRY_VERIFY(!m_ekran);
    }

    // Copying down and taking a row out are the logic's; here their keys.
    void kodListesindenSecim()
    {
        sql(u"insert into URUN_K (HesapKod, MalzAdi) values (?, ?)"_s,
            {"150 01 01 002", "Fotokopi Kağıdı Beyaz 80 Gram A3 Boy Kutulu Ambalaj"});
        ac();
        hucreyeGit(1, HesapKod, u"1"_s);
        // The drop-down is wide enough to read the longest item whole.
        auto* kutu = kontrol<QComboBox>("HesKod");
        Tus(Qt::Key_F4);
        QTRY_VERIFY(kutu->view()->isVisible());
        QVERIFY(kutu->view()->viewport()->width()
                >= kutu->view()->fontMetrics().horizontalAdvance(kutu->itemText(kutu->count() - 1)));
        kutu->hidePopup();
        listedenSec(0);
        // The list is sorted by name: A4 Kağıt first.
        QCOMPARE(hucreler(1, {HesapKod, Birimi, KDV}), QStringList({u"150 01 01 001"_s, u"PAKET"_s, u"18"_s}));
        QCOMPARE(izgara()->Col(), int(Ozellik));

        hucreyeGit(1, Unite, u"K"_s);
        listedenSec(0);
        QCOMPARE(hucre(1, Unite), u"5"_s);
        QCOMPARE(kontrol<QLabel>("Label20")->text(), u"Kütüphane"_s);

        hucreyeGit(1, HesapKod);
        Tus(Qt::Key_Insert);
        QCOMPARE(izgara()->Row(), 2);
        QCOMPARE(hucre(2, KDV), u"18"_s);
        hucreyeGit(2, Ozellik);
        Tus(Qt::Key_Insert);
        QCOMPARE(izgara()->Row(), 2);

        hucreyeGit(1, Ozellik);
        Tus(Qt::Key_F6);
        QCOMPARE(hucreler(1, {HesapKod, Unite}), QStringList({u"150 01 01 001"_s, QString()}));
        QCOMPARE(izgara()->model()->rowCount(), 25);
    }

    // Which lines count is the logic's; here F9 by code, Shift+F9 by
    // description, the boxes, Esc and printing.
    void hareketListesi()
    {
        kayitliFis();
        veri().Ayniyat().Calistir(u"update FIS set FCinss = 'D', Cikan = '4', Ozellik = 'MAVİ' where Satir = 2"_s);
        ac();
        QCOMPARE(yanitla(u"Tamam"_s, [] { Tus(Qt::Key_F9); }),
                 u"Seçili Hesap Kod veya Özellik-Marka Yok.  Belirtiniz. "_s);
        auto* L3 = kontrol<ListeIzgarasi>("L3");
        QVERIFY(!L3->isVisible());

        izgara()->HucreYaz(1, HesapKod, u"255 01 01 001"_s);
        izgara()->HucreYaz(1, MalzAdi, u"BİLGİSAYAR"_s);
        izgara()->HucreYaz(1, Ozellik, u"MAVİ"_s);
        hucreyeGit(1, HesapKod);
        Tus(Qt::Key_F9);
        QVERIFY(L3->isVisible());
        QCOMPARE(Odak(), u"L3"_s);
        QCOMPARE(L3->Rows(), 1);
        QCOMPARE(kontrol("Gelen")->text(), u"0"_s);
        Tus(Qt::Key_Escape);
        QVERIFY(!L3->isVisible() && !kontrol("Gelen")->isVisible());
        QCOMPARE(Odak(), u"T"_s);
        bas({Qt::Key_Right, Qt::Key_Right});
        Tus(Qt::Key_F9, Qt::ShiftModifier);
        QCOMPARE(L3->Rows(), 3);
        QCOMPARE(L3->TextMatrix(0, MalzAdi), u"FişNo"_s);
        QCOMPARE(metinler({"Gelen", "Cikan", "Kalan"}), QStringList({u"12"_s, u"4"_s, u"8"_s}));
        QVERIFY(!kontrol<QPushButton>("Command6")->isVisible());

        kontrol<QPushButton>("Cmd9")->click();
        QCOMPARE(m_cikti.belgeler.size(), 1);
        const Sayfa& sayfa = m_cikti.belgeler[0][0];
        QCOMPARE(sayfa.MetinNerede(10 * MmTwip, 5 * MmTwip), u"255 01 01 001 - BİLGİSAYAR      Tarih :2026"_s);
        QCOMPARE(sayfa.yazilar.last().metin, u"Toplam :"_s);
    }

    void cikisFisi()
    {
        kayitliFis();
        ac(cikis());
        QCOMPARE(kontrol("FisNo")->text(), u"1"_s);
        QCOMPARE(kontrol<QLabel>("Label2")->text(), u"Ambardan Çıkış"_s);
        for (const char* ad : {"KabulSayi", "KabulTarih", "Label16", "Label7", "Label23", "NeredenGeldigi"})
            QVERIFY2(!kontrol<QWidget>(ad)->isVisible(), ad);
        QCOMPARE(izgara()->TextMatrix(0, Miktar), QString());
        QCOMPARE(izgara()->TextMatrix(0, BelgeTarih), u"BelgeTarih "_s);
        QVERIFY(izgara()->columnWidth(Miktar) < izgara()->columnWidth(Birimi) / 5);

        kontrol("Tarih")->setFocus();
        bas({Qt::Key_Return}, u"TeslimAlan"_s);
        bas({Qt::Key_Return, Qt::Key_Return, Qt::Key_Return}, u"T"_s);
        hucreyeGit(1, HesapKod);
        bas({u"150 01 01 001"_s, Qt::Key_Return});
        hucreyeGit(1, Miktar, u"6"_s);
        hucreyeGit(1, Cikan);
        bas({u"6"_s, Qt::Key_F1});
        alanlar(u"FIS"_s, u"where FCins = 'C'"_s, {{"FisNo", "1"}, {"Miktar", ""}, {"Cikan", "6"}});
        QCOMPARE(say(u"FIS_B"_s), 2);

        // The request slip carries the kind; a unit code typed by hand is
        // named once the cursor passes the unit columns.
        kontrol<QPushButton>("Cyaz2")->click();
        auto* istek = m_ekran->findChild<IstekYaz*>();
        QVERIFY(istek);
        QCOMPARE(istek->Goruntu().MetinNerede(8700, 280), u"Ç-1"_s);
        QCOMPARE(istek->Goruntu().MetinNerede(1650, 650), QString());
        istek->close();
        QTRY_VERIFY(!m_ekran->findChild<IstekYaz*>());
        etkinlestir();
        hucreyeGit(1, Unite, u"3"_s);
        hucreyeGit(1, IslemTur);
        Tus(Qt::Key_F7);
        istek = m_ekran->findChild<IstekYaz*>();
        QVERIFY(istek);
        QCOMPARE(istek->Goruntu().MetinNerede(1650, 650), u"Muhasebe"_s);

        // The menu's next entry reuses the form: the controls stay hidden.
        m_ekran->KipAyarla(giris());
        QVERIFY(!kontrol("KabulSayi")->isVisible());
    }

    void sinifEkranindanYeniSinif()
    {
        ac();
        hucreyeGit(2, Miktar);
        Tus(Qt::Key_F8);
        auto* sinif = m_ekran->findChild<SinifTani*>();
        QVERIFY(sinif);
        QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget*>(sinif));
        QCOMPARE(Odak(), u"HesapNo"_s);
        bas({u"150 01 01 009"_s, Qt::Key_Return}, u"MalzAdi"_s);
        bas({u"Zımba"_s, Qt::Key_Tab, u"KUTU"_s, Qt::Key_Tab, u"18"_s, Qt::Key_F1});
        QTRY_VERIFY(!m_ekran->findChild<SinifTani*>());
        QCOMPARE(hucreler(2, {HesapKod, MalzAdi, Birimi, SinifKDV}),
                 QStringList({u"150 01 01 009"_s, u"Zımba"_s, u"KUTU"_s, u"18"_s}));
        QCOMPARE(izgara()->Col(), int(Ozellik));
        // Each combo offers the new class when its column is reached.
        hucreyeGit(2, HesapKod);
        QVERIFY(kontrol<QComboBox>("HesKod")->findText(u"150 01 01 009 Zımba"_s) >= 0);
        hucreyeGit(2, MalzAdi);
        QVERIFY(kontrol<QComboBox>("Detay3")->findText(u"Zımba"_s) >= 0);
    }

    // Ctrl+F6 in the grid or the line editor, or the button, opens the rate
    // box beside the price cell with the line's rate. Enter adds the VAT,
    // again at each press; a rate that is no number is kept and adds none.
    // Esc or a lost focus leave the line as it was.
    void kdvOranKutusu_data()
    {
        QTest::addColumn<QString>("nereden");
        QTest::addColumn<QString>("oran");
        QTest::addColumn<QString>("nasil");
        QTest::addColumn<QStringList>("sonra");  // price and rate
        QTest::newRow("grid") << "T" << "18" << "Enter" << QStringList{"139,24", "18"};
        QTest::newRow("line editor") << "TE1" << "18" << "Enter" << QStringList{"139,24", "18"};
        QTest::newRow("button") << "CmdKDVEkle" << "18" << "Enter" << QStringList{"139,24", "18"};
        QTest::newRow("no number") << "T" << "%18" << "Enter" << QStringList{"100", "%18"};
        QTest::newRow("Esc") << "T" << "%18" << "Esc" << QStringList{"100", " 8 "};
        QTest::newRow("focus lost") << "T" << "%18" << "odak" << QStringList{"100", " 8 "};
    }
    void kdvOranKutusu()
    {
        QFETCH(QString, nereden);
        QFETCH(QString, oran);
        QFETCH(QString, nasil);
        QFETCH(QStringList, sonra);
        ac();
        izgara()->HucreYaz(2, KDV, u" 8 "_s);
        // Only the price column has the box.
        hucreyeGit(2, Miktar);
        Tus(Qt::Key_F6, Qt::ControlModifier);
        QVERIFY(!kontrol("KDVOran")->isVisible());
        hucreyeGit(2, BirimFiyat);
        bas({u"100"_s}, u"TE1"_s);
        for (int kez = 0; kez < (nasil == u"Enter" ? 2 : 1); ++kez) {
            if (nereden == u"CmdKDVEkle") {
                kontrol<QPushButton>("CmdKDVEkle")->click();
            } else {
                (nereden == u"T" ? static_cast<QWidget*>(izgara()) : kontrol("TE1"))->setFocus();
                Tus(Qt::Key_F6, Qt::ControlModifier);
            }
            QCOMPARE(Odak(), u"KDVOran"_s);
            QCOMPARE(kontrol("lblMahsup")->text(), u" KDV Oran :"_s);
            QVERIFY(kontrol("lblMahsup")->isVisible() && kontrol<QLabel>("Label10")->isVisible());
            // Beside the price cell, on its row.
            const QRect alan = izgara()->HucreAlani();
            const QRect hucreAlani(izgara()->viewport()->mapTo(m_ekran, alan.topLeft()), alan.size());
            const QRect kutu = kontrol("KDVOran")->geometry();
            QVERIFY(kutu.right() < hucreAlani.left());
            QVERIFY(hucreAlani.top() <= kutu.center().y() && kutu.center().y() <= hucreAlani.bottom());
            QCOMPARE(kontrol("KDVOran")->text(), kez == 0 ? u"8"_s : oran);
            if (kez == 0)
                yaz(oran);
            if (nasil == u"odak")
                kontrol("FisNo")->setFocus();
            else
                Tus(nasil == u"Esc" ? Qt::Key_Escape : Qt::Key_Return);
            QCOMPARE(Odak(), nasil == u"odak" ? u"FisNo"_s : u"T"_s);
            QVERIFY(!kontrol("KDVOran")->isVisible() && !kontrol("lblMahsup")->isVisible()
                    && !kontrol<QLabel>("Label10")->isVisible());
        }
        QCOMPARE(hucreler(2, {BirimFiyat, KDV}), sonra);
        QCOMPARE(kontrol("TE1")->text(), sonra[0]);
    }

    void f2FisYazdirma()
    {
        ac();
        const auto satir = [this](int i, const char* miktar, const char* fiyat, const char* kdv) {
            izgara()->HucreYaz(i, HesapKod, u"150 01 01 001"_s);
            izgara()->HucreYaz(i, Miktar, QString::fromLatin1(miktar));
            izgara()->HucreYaz(i, BirimFiyat, QString::fromLatin1(fiyat));
            izgara()->HucreYaz(i, KDV, QString::fromLatin1(kdv));
        };
        satir(1, "10", "5", "");
        satir(2, "2", "100", "20");
        satir(3, "", "7", "");
        hucreyeGit(1, Ozellik);
        Tus(Qt::Key_F2);
        auto* fisYaz = m_ekran->findChild<FisYaz*>();
        QVERIFY(fisYaz);
        QCOMPARE(fisYaz->KDVTut->text(), u"49"_s);
        QCOMPARE(hucre(1, KDV), u"18"_s);
        QCOMPARE(hucre(3, KDV), QString());
        QCOMPARE(kontrol("Text3")->text(), u"250"_s);
        QCOMPARE(fisYaz->Goruntu().MetinNerede(300, 7930), u"İkiYüzElli Lira "_s);
        fisYaz->close();
        QTRY_VERIFY(!m_ekran->findChild<FisYaz*>());

        // Five kuruş cannot be worded: said, and printed without the words.
        satir(2, "1", "0.05", "20");
        etkinlestir();
        ModalYanit tamam(u"Tamam"_s);
        kontrol<QPushButton>("Cd4")->click();
        QVERIFY(tamam.Metin().startsWith(u"Tutar yazıya çevrilemedi"_s));
        fisYaz = m_ekran->findChild<FisYaz*>();
        QVERIFY(fisYaz);
        QCOMPARE(kontrol("Text3")->text(), u"50,05"_s);
        QCOMPARE(fisYaz->KDVTut->text(), u"9,01"_s);
        QCOMPARE(fisYaz->Goruntu().MetinNerede(300, 7930), QString());
    }
};

QTEST_MAIN(TstFisK)
#include "tst_fis_k.moc"
