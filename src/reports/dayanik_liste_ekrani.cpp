#include "dayanik_liste_ekrani.h"

#include "dayanik_liste_kagidi.h"
#include "rapor_listeleri.h"
#include "tarih_secici.h"
#include "yazilir_kutu.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <optional>

using namespace DayanikListesi;

DayanikListe::DayanikListe(const CalismaBaglami& baglam, QWidget* parent)
    : RaporEkrani(baglam, QStringLiteral("8.5"), parent)
{
    BaslikKur();

    TarihleriKur();
    const auto kutu = [&](QComboBox*& k, const char* ad, const QString& baslik) {
        k = SecimKutusu(Cerceve(baslik), ad);
    };
    kutu(UniteAd1, "UniteAd1", QStringLiteral("Ünite Seçim"));
    kutu(HesapNo4, "HesapNo4", QStringLiteral("Tek Malzeme Listeleme"));
    QGroupBox* ambar = Cerceve(QStringLiteral("Ambar No"));
    AmbarNo = Adli(new QLineEdit(ambar), "AmbarNo");
    Check2 = Adli(new QCheckBox(QStringLiteral("Tüm Ambarlar"), ambar), "Check2");
    ambar->layout()->addWidget(AmbarNo);
    ambar->layout()->addWidget(Check2);

    Command3->setText(QStringLiteral("F5_ Bu Birimden Liste"));
    Command16 = Dugme("Command16", QStringLiteral("Yeniden Liste"));

    connect(HesapNo4, &QComboBox::editTextChanged, this, [this] {
        if (HesapNo4->hasFocus())
            ListeleriDoldur(HesapNo4);
    });
    for (QComboBox* k : {UniteAd1, HesapNo4})
        connect(k, &QComboBox::activated, this, &DayanikListe::Toplu);
    connect(AmbarNo, &QLineEdit::returnPressed, this, &DayanikListe::Toplu);
    connect(Check2, &QCheckBox::toggled, this, [this](bool secili) {
        if (secili) {
            AmbarNo->clear();
            Toplu();
        }
    });
    connect(Command16, &QPushButton::clicked, this, &DayanikListe::YenidenListe);
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { YaziciT(); });

    AcilisTarihleri();
}

void DayanikListe::HangiYaz(const QString& hangi)
{
    m_hangi = hangi;
    AcilisTarihleri();
    // The walk runs when the form is shown, as its activation ran it.
    if (isVisible())
        Toplu();
    else
        QTimer::singleShot(0, this, &DayanikListe::Toplu);
}

void DayanikListe::AcilisTarihleri()
{
    const QString ad = m_hangi == u"D" ? QStringLiteral("Dayanıklı Taşınır Liste") : QStringLiteral("Birim Tüketim Liste");
    setWindowTitle(ad);
    BaslikAlani->setText(ad + QStringLiteral("   "));
    // The working year's dates; the durable list from the first records on.
    const RaporSuzgeci acilis = RaporSuzgecleri::Acilis(Baglam().CalisYil, QStringLiteral("T"));
    Tarih->GunYaz(m_hangi == u"D" ? QDate(1900, 1, 1) : acilis.Tarih);
    Tarih1->GunYaz(acilis.Tarih1);
}

RaporSuzgeci DayanikListe::Suzgec() const
{
    RaporSuzgeci s = Donem();
    s.TekMalzeme = HesapNo4->currentText();
    s.AmbarNo = AmbarNo->text();
    s.TumAmbarlar = Check2->isChecked();
    return s;
}

void DayanikListe::Toplu()
{
    if (Yuruyor())
        return;
    TarihleriAl();
    const RaporSuzgeci s = Suzgec();
    const QString uniteAd1 = UniteAd1->currentText().trimmed();
    QList<Birim> birimler;
    if (!Dene([&] { birimler = Birimler(Genel(), uniteAd1); }))
        return;
    ListeyiTemizle();
    if (birimler.isEmpty()) {
        Bildir(QStringLiteral("  Ünite-Birim Kaydı Bulunamadı .. "));
        Bildir(QStringLiteral("  Bitti... "));
        return;
    }
    const auto ilk = std::find_if(birimler.cbegin(), birimler.cend(),
                                  [this](const Birim& b) { return b.UniteKod == m_ilkBirim; });
    if (ilk != birimler.cend())
        birimler.erase(birimler.cbegin(), ilk);
    std::optional<Liste> liste;
    if (!Dene([&] { liste.emplace(Ayniyat(), Genel(), s, m_hangi, birimler); }))
        return;
    const bool bitti = Yuru(int(liste->Sayi()), [&](int i) {
        const Birim& birim = liste->Birimi(i);
        m_birimKod = birim.UniteKod;
        FCins2->setText(birim.UniteAd);
        Sonuc sonuc = liste->Hesapla(i);
        if (!sonuc.kayitVar)
            return true;
        Goster(sonuc.tablo);
        // One unit was asked for: nothing follows it.
        if (!uniteAd1.isEmpty())
            return false;
        if (!Sor(QStringLiteral("YENi Birim-Ünite Dökümü devam edecek mi ?")))
            return false;
        ListeyiTemizle();
        return true;
    });
    if (bitti)
        Bildir(QStringLiteral("  Bitti... "));
}

void DayanikListe::Command3Calistir()
{
    m_ilkBirim = m_birimKod;
    Toplu();
}

void DayanikListe::YenidenListe()
{
    for (QComboBox* k : {UniteAd1, HesapNo4})
        k->setEditText(QString());
    AmbarNo->clear();
    m_ilkBirim.clear();
    Toplu();
}

RaporKagidi DayanikListe::Kagit() const
{
    return DayanikListesi::Kagit(Suzgec(), m_hangi);
}

QStringList DayanikListe::Etiketler() const
{
    return DayanikListesi::Etiketler();
}

void DayanikListe::ListeleriDoldur(QComboBox* kutu)
{
    const QSignalBlocker sessiz(kutu);
    Dene([&] {
        if (kutu == HesapNo4)
            ListeDoldur(HesapNo4, RaporListeleri::Malzemeler(Genel(), m_hangi, HesapNo4->currentText()));
        else
            ListeDoldur(UniteAd1, RaporListeleri::Adlar(RaporListeleri::Uniteler(Genel())));
    });
}

