#include "sayim_tutanak_ekrani.h"

#include "rapor_belgesi.h"
#include "sabit_kayit.h"
#include "sayim_tutanak.h"
#include "sayim_tutanak_kagidi.h"
#include "tarih_secici.h"
#include "yazilir_kutu.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

SayimTutanak::SayimTutanak(const CalismaBaglami& baglam, QWidget* parent)
    : RaporEkrani(baglam, QStringLiteral("8.5"), parent)
{
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

    Command3->setText(QStringLiteral("F5_ Son Sınıf"));
    Command16 = Dugme("Command16", QStringLiteral("Yeniden Liste"));

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
    for (QComboBox* k : {HesapKod6, UniteAd, KimeVerildigi})
        connect(k, &QComboBox::activated, this, &SayimTutanak::Toplu);
    connect(AmbarNo, &QLineEdit::returnPressed, this, &SayimTutanak::Toplu);
    connect(Check2, &QCheckBox::toggled, this, [this](bool secili) {
        if (secili) {
            AmbarNo->clear();
            Toplu();
        }
    });
    connect(Command16, &QPushButton::clicked, this, &SayimTutanak::YenidenListe);
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { YaziciT(); });

    AcilisTarihleri(m_hangi);
    setWindowTitle(QStringLiteral("Sayım Tutanağı"));
    resize(Piksel(15360), 720);
}

void SayimTutanak::HangiYaz(const QString& hangi)
{
    m_hangi = hangi;
    AcilisTarihleri(hangi);
    Toplu();
}

RaporSuzgeci SayimTutanak::Suzgec() const
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
    return s;
}

void SayimTutanak::Toplu()
{
    TarihleriAl();
    RaporTablosu t;
    if (!Dene([&] { t = SayimTutanagi::Tablo(Ayniyat(), Genel(), Suzgec(), m_sinif); }))
        return;
    if (t.satirlar.isEmpty()) {
        ListeyiTemizle();
        Bildir(QStringLiteral("  Malzeme Kaydı Bulunamadı .. "));
        return;
    }
    Goster(t);
}

void SayimTutanak::Command3Calistir()
{
    m_sinif = Tablo().tasinirKod;
    Toplu();
}

void SayimTutanak::YenidenListe()
{
    for (QComboBox* k : {HesapKod5, HesapKod6, TekMalzeme, UniteAd, KimeVerildigi})
        k->setEditText(QString());
    AmbarNo->clear();
    m_sinif.clear();
    Toplu();
}

RaporKagidi SayimTutanak::Kagit() const
{
    return SayimTutanagi::Kagit(Suzgec(), SabitKayit::Getir(Genel()).value_or(SabitSatiri()));
}

QStringList SayimTutanak::Etiketler() const
{
    return RaporBelgeleri::Etiketler();
}

void SayimTutanak::ListeleriDoldur(QComboBox* kutu)
{
    // Refilling changes the box's text for a moment; nobody is told.
    const QSignalBlocker sessiz(kutu);
    Dene([&] {
        if (kutu == KimeVerildigi)
            ListeDoldur(KimeVerildigi, RaporListeleri::KimeVerildigi(Ayniyat(), m_hangi));
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

