#include "def_tuketim2.h"

#include "defter_kagidi.h"
#include "kayit.h"
#include "tarih_secici.h"
#include "yazilir_kutu.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

DefTuketim2::DefTuketim2(const CalismaBaglami& baglam, QWidget* parent)
    : RaporEkrani(baglam, QStringLiteral("8"), parent)
{
    BaslikKur();

    TarihleriKur();
    const auto kutu = [&](QComboBox*& k, const char* ad, QGroupBox* g) { k = SecimKutusu(g, ad); };
    QGroupBox* aralik = Cerceve(QStringLiteral("Hesap Kod Aralığı"));
    kutu(HesapKod5, "HesapKod5", aralik);
    kutu(HesapKod6, "HesapKod6", aralik);
    kutu(TekMalzeme, "TekMalzeme", Cerceve(QStringLiteral("Tek Malzeme Listeleme")));
    QGroupBox* ambar = Cerceve(QStringLiteral("Ambar No"));
    AmbarNo = Adli(new QLineEdit(ambar), "AmbarNo");
    Check2 = Adli(new QCheckBox(QStringLiteral("Tüm Ambarlar"), ambar), "Check2");
    ambar->layout()->addWidget(AmbarNo);
    ambar->layout()->addWidget(Check2);
    kutu(UniteAd, "UniteAd", Cerceve(QStringLiteral("Ünite Seçim")));
    kutu(KimeVerildigi, "KimeVerildigi", Cerceve(QStringLiteral("Kime Verildiği")));
    kutu(Ozellik, "Ozellik", Cerceve(QStringLiteral("Özellik")));
    Check1 = Adli(new QCheckBox(QStringLiteral("Boşları Gösterme"), this), "Check1");
    PaneleEkle(Check1);
    QGroupBox* kdv = Cerceve(QStringLiteral("KDV"));
    Option1 = Adli(new QRadioButton(QStringLiteral("Ekle"), kdv), "Option1");
    Option2 = Adli(new QRadioButton(QStringLiteral("Ekleme"), kdv), "Option2");
    Option1->setChecked(true);
    kdv->layout()->addWidget(Option1);
    kdv->layout()->addWidget(Option2);
    QGroupBox* satir = Cerceve(QStringLiteral("Satır Sayı"));
    SatirSayi = Adli(new QLineEdit(QStringLiteral("53"), satir), "SatirSayi");
    SatirSayi->setToolTip(QStringLiteral("45 ile 56 Arası Rakam olmalı."));
    satir->layout()->addWidget(SatirSayi);

    Command3->setText(QStringLiteral("F5_ Sonraki Sınıf"));
    Command1 = Dugme("Command1", QStringLiteral("F4_ Sonraki Sayfa Yaz"));
    Command16 = Dugme("Command16", QStringLiteral("Yeniden Liste"));

    // A typed beginning narrows the names offered.
    connect(TekMalzeme, &QComboBox::editTextChanged, this, [this] {
        if (TekMalzeme->hasFocus())
            ListeleriDoldur(TekMalzeme);
    });
    connect(TekMalzeme, &QComboBox::activated, this, [this] {
        // One material leaves no room for a code range.
        HesapKod5->setEditText(QString());
        HesapKod6->setEditText(QString());
        Toplu();
    });
    for (QComboBox* k : {HesapKod6, UniteAd, KimeVerildigi, Ozellik})
        connect(k, &QComboBox::activated, this, &DefTuketim2::Toplu);
    connect(AmbarNo, &QLineEdit::returnPressed, this, &DefTuketim2::Toplu);
    connect(Check2, &QCheckBox::toggled, this, [this](bool secili) {
        if (secili) {
            AmbarNo->clear();
            Toplu();
        }
    });
    for (QRadioButton* op : {Option1, Option2})
        connect(op, &QRadioButton::toggled, this, [this](bool secili) {
            if (secili)
                Toplu();
        });
    connect(Command1, &QPushButton::clicked, this, &DefTuketim2::Command1Calistir);
    connect(Command16, &QPushButton::clicked, this, &DefTuketim2::YenidenListe);
    TusTanimla(QKeySequence(Qt::Key_F4), [this] { Command1Calistir(); });

    AcilisTarihleri(m_hangi);
    setWindowTitle(QStringLiteral("Tüketim Malzemeleri Defteri"));
    resize(Piksel(15360), 720);
}

void DefTuketim2::HangiYaz(const QString& hangi)
{
    m_hangi = hangi;
    setWindowTitle(hangi == u"D" ? QStringLiteral("Dayanıklı Malzeme Defteri")
                                 : QStringLiteral("Tüketim Malzemeleri Defteri"));
    AcilisTarihleri(hangi);
    Toplu();
}

RaporSuzgeci DefTuketim2::Suzgec() const
{
    RaporSuzgeci s = Donem();
    s.HesapKod5 = RaporListeleri::Kodu(HesapKod5->currentText());
    s.HesapKod6 = RaporListeleri::Kodu(HesapKod6->currentText());
    s.TekMalzeme = TekMalzeme->currentText();
    s.AmbarNo = AmbarNo->text();
    s.TumAmbarlar = Check2->isChecked();
    for (const RaporListeleri::KodAd& u : m_uniteler)
        if (u.ad == UniteAd->currentText())
            s.Unite = u.kod;
    s.KimeVerildigi = KimeVerildigi->currentText();
    s.Ozellik = Ozellik->currentText();
    s.SonrakiSinif = m_sonrakiSinif;
    return s;
}

void DefTuketim2::Baslik(const Defter::Sinif& sinif)
{
    m_sinifKod = sinif.HesapKod;
    BaslikAlani->setText((m_hangi == u"D" ? QStringLiteral("Dayanıklı Malzeme Defteri        ")
                                          : QStringLiteral("Tüketim Malzemeleri Defteri      "))
                         + sinif.HesapKod + QStringLiteral("  "));
    FCins2->setText(sinif.MalzAdi);
}

void DefTuketim2::Toplu()
{
    if (Yuruyor())
        return;
    TarihleriAl();
    const RaporSuzgeci s = Suzgec();
    const bool kdvEkle = Option1->isChecked();
    QList<Defter::Sinif> siniflar;
    if (!Dene([&] { siniflar = Defter::Siniflar(Genel(), s, m_hangi); }))
        return;
    ListeyiTemizle();
    if (siniflar.isEmpty()) {
        Bildir(QStringLiteral("  Malzeme Kaydı Bulunamadı .. "));
        return;
    }
    const bool bitti = Yuru(int(siniflar.size()), [&](int i) {
        const Defter::Sinif& sinif = siniflar.at(i);
        Baslik(sinif);
        Defter::Sonuc sonuc;
        if (!Dene([&] { sonuc = Defter::Hesapla(Ayniyat(), Genel(), s, m_hangi, kdvEkle, sinif); }))
            return false;
        if (!sonuc.kayitVar) {
            if (!Check1->isChecked())
                Bildir(QStringLiteral(" Kayıt Bulunamadı .. "));
            return true;
        }
        Goster(sonuc.tablo);
        if (!Sor(QStringLiteral("  YENi Malzeme Dökümü Devam Edecek mi ?  ")))
            return false;
        ListeyiTemizle();
        return true;
    });
    if (bitti)
        Bildir(QStringLiteral("  Bitti... "));
}

void DefTuketim2::Command3Calistir()
{
    m_sonrakiSinif = m_sinifKod;
    Toplu();
}

void DefTuketim2::Command1Calistir()
{
    if (Yuruyor())
        return;
    SayfaNo->setText(QString::number(int(Val(SayfaNo->text())) + 1));
    Command3Calistir();
    YaziciT();
}

void DefTuketim2::YenidenListe()
{
    for (QComboBox* k : {HesapKod5, HesapKod6, TekMalzeme, UniteAd, KimeVerildigi, Ozellik})
        k->setEditText(QString());
    AmbarNo->clear();
    m_sonrakiSinif.clear();
    Toplu();
}

RaporKagidi DefTuketim2::Kagit() const
{
    return Defter::Kagit(Suzgec(), int(Val(SatirSayi->text())));
}

QStringList DefTuketim2::Etiketler() const
{
    return Defter::Etiketler();
}

void DefTuketim2::ListeleriDoldur(QComboBox* kutu)
{
    // Refilling changes the box's text for a moment; nobody is told.
    const QSignalBlocker sessiz(kutu);
    Dene([&] {
        if (kutu == KimeVerildigi)
            ListeDoldur(KimeVerildigi, RaporListeleri::KimeVerildigi(Ayniyat(), m_hangi));
        else if (kutu == Ozellik)
            ListeDoldur(Ozellik, RaporListeleri::Ozellik(Ayniyat(), m_hangi));
        else if (kutu == TekMalzeme)
            ListeDoldur(TekMalzeme, RaporListeleri::Malzemeler(Genel(), m_hangi, TekMalzeme->currentText()));
        else if (kutu == UniteAd) {
            m_uniteler = RaporListeleri::Uniteler(Genel());
            ListeDoldur(UniteAd, RaporListeleri::Adlar(m_uniteler));
        } else {
            ListeDoldur(kutu, RaporListeleri::KodluAdlar(RaporListeleri::HesapKodlari(Genel(), m_hangi)));
        }
    });
}

