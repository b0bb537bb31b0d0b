#include "sayim_tutanak_ekrani.h"

#include "sabit_kayit.h"
#include "sayim_tutanak.h"
#include "sayim_tutanak_kagidi.h"
#include "tarih_secici.h"
#include "yazilir_kutu.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

// A code chosen from the range boxes stands before its name.
QString kodu(const QComboBox* kutu)
{
    return kutu->currentText().section(QStringLiteral("  "), 0, 0).trimmed();
}

}

SayimTutanak::SayimTutanak(const CalismaBaglami& baglam, QWidget* parent)
    : RaporEkrani(baglam, QStringLiteral("8.5"), parent)
{
    const auto cerceve = [this](const QString& ad) {
        auto* g = new QGroupBox(ad, this);
        new QVBoxLayout(g);
        PaneleEkle(g);
        return g;
    };
    const auto tarih = [&](TarihSecici*& kutu, const char* ad, const QString& baslik) {
        QGroupBox* g = cerceve(baslik);
        kutu = Adli(new TarihSecici(g), ad);
        kutu->installEventFilter(this);
        g->layout()->addWidget(kutu);
        connect(kutu, &TarihSecici::editingFinished, this, [this] {
            if (std::pair(Tarih->date(), Tarih1->date()) != m_tarihler)
                Toplu();
        });
    };
    tarih(Tarih, "Tarih", QStringLiteral("Başlama Tarihi"));
    tarih(Tarih1, "Tarih1", QStringLiteral("Bitiş Tarihi"));

    const auto kutu = [&](QComboBox*& k, const char* ad, QGroupBox* g) {
        k = YazilirKutu(g, QString::fromLatin1(ad));
        k->installEventFilter(this);
        g->layout()->addWidget(k);
    };
    QGroupBox* aralik = cerceve(QStringLiteral("Hesap Kod Aralığı"));
    kutu(HesapKod5, "HesapKod5", aralik);
    kutu(HesapKod6, "HesapKod6", aralik);
    kutu(TekMalzeme, "TekMalzeme", cerceve(QStringLiteral("Tek Malzeme Listeleme")));
    QGroupBox* ambar = cerceve(QStringLiteral("Ambar No"));
    AmbarNo = Adli(new QLineEdit(ambar), "AmbarNo");
    Check2 = Adli(new QCheckBox(QStringLiteral("Tüm Ambarlar"), ambar), "Check2");
    ambar->layout()->addWidget(AmbarNo);
    ambar->layout()->addWidget(Check2);
    kutu(UniteAd, "UniteAd", cerceve(QStringLiteral("Ünite Seçim")));
    kutu(KimeVerildigi, "KimeVerildigi", cerceve(QStringLiteral("Kime Verildiği")));

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

    const RaporSuzgeci acilis = RaporSuzgecleri::Acilis(Baglam().CalisYil, m_hangi);
    Tarih->GunYaz(acilis.Tarih);
    Tarih1->GunYaz(acilis.Tarih1);
    setWindowTitle(QStringLiteral("Sayım Tutanağı"));
    resize(Piksel(15360), 720);
}

void SayimTutanak::HangiYaz(const QString& hangi)
{
    m_hangi = hangi;
    const RaporSuzgeci acilis = RaporSuzgecleri::Acilis(Baglam().CalisYil, hangi);
    Tarih->GunYaz(acilis.Tarih);
    Tarih1->GunYaz(acilis.Tarih1);
    Toplu();
}

RaporSuzgeci SayimTutanak::Suzgec() const
{
    RaporSuzgeci s;
    s.Tarih = Tarih->date();
    if (!Tarih1->Bos())
        s.Tarih1 = Tarih1->date();
    s.HesapKod5 = kodu(HesapKod5);
    s.HesapKod6 = kodu(HesapKod6);
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
    m_tarihler = {Tarih->date(), Tarih1->date()};
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
    return SayimTutanagi::Etiketler();
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
            QStringList adlar;
            for (const RaporListeleri::KodAd& u : m_uniteler)
                adlar << u.ad;
            ListeDoldur(UniteAd, adlar);
        } else {
            QStringList kodlar;
            for (const RaporListeleri::KodAd& k : RaporListeleri::HesapKodlari(Genel(), m_hangi))
                kodlar << k.kod + QStringLiteral("  ") + k.ad;
            ListeDoldur(kutu, kodlar);
        }
    });
}

bool SayimTutanak::eventFilter(QObject* nesne, QEvent* olay)
{
    if ((nesne == Tarih || nesne == Tarih1) && olay->type() == QEvent::KeyPress) {
        const int tus = static_cast<QKeyEvent*>(olay)->key();
        if (tus == Qt::Key_Return || tus == Qt::Key_Enter) {
            Toplu();
            return true;
        }
    }
    // A box fills its list when the user comes to it, not when a message
    // or its own list hands the focus back.
    if (auto* kutu = qobject_cast<QComboBox*>(nesne); kutu && olay->type() == QEvent::FocusIn) {
        const Qt::FocusReason neden = static_cast<QFocusEvent*>(olay)->reason();
        if (neden != Qt::ActiveWindowFocusReason && neden != Qt::PopupFocusReason)
            ListeleriDoldur(kutu);
    }
    return RaporEkrani::eventFilter(nesne, olay);
}
