#include "unite_tani.h"

#include "hata.h"
#include "kayit.h"
#include "liste_izgarasi.h"
#include "unite_tanim.h"
#include "yukari_asagi.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include <iterator>

namespace {

// The control under its form name, which tests and the menu look it up by.
}

Unite_TANI::Unite_TANI(const CalismaBaglami& baglam, QWidget* parent) : KartEkrani(baglam, parent)
{
    setWindowTitle(QStringLiteral("Ünite-Birim Tanımlama"));
    auto* ana = new QVBoxLayout(this);

    UniteKod = Adli(new QLineEdit(this), "UniteKod");
    UniteAd = Adli(new QLineEdit(this), "UniteAd");
    BiletFiyat = Adli(new QLineEdit(this), "BiletFiyat");
    const int harf = fontMetrics().averageCharWidth();
    UniteKod->setFixedWidth(harf * 10);
    UniteAd->setMinimumWidth(harf * 40);
    BiletFiyat->setFixedWidth(harf * 10);

    BT = new YukariAsagi(UniteKod, this);
    BTYukari = BT->BTYukari;
    BTAsagi = BT->BTAsagi;

    auto* kart = new QGridLayout;
    auto* kodEtiketi = new QLabel(QStringLiteral("Ünite Kod"), this);
    kodEtiketi->setBuddy(UniteKod);
    auto* adEtiketi = new QLabel(QStringLiteral("Ünite Adı"), this);
    adEtiketi->setBuddy(UniteAd);
    auto* kodSirasi = new QHBoxLayout;
    kodSirasi->setSpacing(2);
    kodSirasi->addWidget(UniteKod);
    kodSirasi->addWidget(BT);
    kodSirasi->addStretch();
    kart->addWidget(kodEtiketi, 0, 0);
    kart->addLayout(kodSirasi, 0, 1);
    kart->addWidget(adEtiketi, 1, 0);
    kart->addWidget(UniteAd, 1, 1);
    kart->addWidget(BiletFiyat, 2, 1, Qt::AlignLeft);
    ana->addLayout(kart);

    auto* dugmeler = new QHBoxLayout;
    c2 = Adli(new QPushButton(QStringLiteral("F1_Kayıt"), this), "c2");
    CmdYaz = Adli(new QPushButton(QStringLiteral("F2  Yaz"), this), "CmdYaz");
    c1 = Adli(new QPushButton(QStringLiteral("F4_Yeni Ünite"), this), "c1");
    c5 = Adli(new QPushButton(QStringLiteral("F5_ Sil"), this), "c5");
    c9 = Adli(new QPushButton(QStringLiteral("Çıkış"), this), "c9");
    for (QPushButton* d : {c2, CmdYaz, c1, c5, c9})
        dugmeler->addWidget(d);
    dugmeler->addStretch();
    ana->addLayout(dugmeler);

    // The filters stand over the columns they bound.
    T = Adli(new ListeIzgarasi(this), "T");
    T->Basliklar(UniteTanim::Basliklar());
    T->Genislikler(UniteTanim::Genislikler());
    UniteKod1 = Adli(new QLineEdit(this), "UniteKod1");
    UniteAd1 = Adli(new QLineEdit(this), "UniteAd1");
    Op1 = Adli(new QRadioButton(QStringLiteral("Ünite Kod"), this), "Op1");
    Op2 = Adli(new QRadioButton(QStringLiteral("Ünite Adı"), this), "Op2");
    Op1->setChecked(true);
    ana->addLayout(SuzgecSatiri(T, {UniteKod1, UniteAd1}, {Op1, Op2}));
    ana->addWidget(T, 1);

    DurumSatiriEkle(ana);
    // The status panel shows from a save until the mouse passes over the list.
    DurumSatiriniGizle();
    T->viewport()->setMouseTracking(true);
    T->viewport()->installEventFilter(this);

    QWidget* sira[] = {UniteKod, UniteAd, BiletFiyat, c2, CmdYaz, c1, c5, c9, UniteKod1, UniteAd1, Op1, Op2, T};
    for (size_t i = 1; i < std::size(sira); ++i)
        setTabOrder(sira[i - 1], sira[i]);
    for (QLineEdit* k : {UniteKod, UniteAd, BiletFiyat})
        k->installEventFilter(this);

    const auto yeniUnite = [this] {
        UniteKod->clear();
        UniteKod->setFocus();
        Temizle();
    };
    c2->setEnabled(false);
    connect(UniteAd, &QLineEdit::textChanged, c2,
            [this](const QString& ad) { c2->setEnabled(!ad.trimmed().isEmpty()); });
    connect(c2, &QPushButton::clicked, this, [this] {
        if (!UniteKod->text().trimmed().isEmpty())
            Kaydet();
    });
    connect(CmdYaz, &QPushButton::clicked, this, &Unite_TANI::Yaz);
    connect(c1, &QPushButton::clicked, this, yeniUnite);
    connect(c5, &QPushButton::clicked, this, &Unite_TANI::Sil);
    connect(c9, &QPushButton::clicked, this, &QWidget::close);
    connect(BTYukari, &QToolButton::clicked, this, [this] { Adim(true); });
    connect(BTAsagi, &QToolButton::clicked, this, [this] { Adim(false); });
    TusTanimla(QKeySequence(Qt::Key_F1), [this] { Kaydet(); });
    TusTanimla(QKeySequence(Qt::Key_F4), yeniUnite);
    TusTanimla(QKeySequence(Qt::Key_F5), [this] { Sil(); });

    connect(UniteKod1, &QLineEdit::textChanged, this, &Unite_TANI::Guncelle);
    connect(UniteAd1, &QLineEdit::textChanged, this, &Unite_TANI::Guncelle);
    for (QRadioButton* op : {Op1, Op2})
        connect(op, &QRadioButton::toggled, this, [this](bool secili) {
            if (secili)
                Guncelle();
        });
    connect(T, &ListeIzgarasi::CiftTiklandi, this, [this](int satir) {
        if (satir >= 1)
            SatirGetir(satir);
    });
    connect(T, &ListeIzgarasi::EnterBasildi, this, [this](int satir) {
        if (Val(T->TextMatrix(satir, 0)) > 0)
            SatirGetir(satir);
    });

    Guncelle();
    Sonk();
    UniteKod->setFocus();
}

bool Unite_TANI::eventFilter(QObject* nesne, QEvent* olay)
{
    if (nesne == T->viewport()) {
        if (olay->type() == QEvent::MouseMove)
            DurumSatiri()->hide();
        return false;
    }
    if (olay->type() != QEvent::KeyPress)
        return false;
    const int tus = static_cast<QKeyEvent*>(olay)->key();
    const bool ileri = tus == Qt::Key_Return || tus == Qt::Key_Enter || tus == Qt::Key_Down;
    if (nesne == UniteKod) {
        if (ileri) {
            Getir();
            UniteAd->setFocus();
        } else if (tus == Qt::Key_Home) {
            UniteKod->setText(QStringLiteral("1"));
            Getir();
        } else if (tus == Qt::Key_PageDown || tus == Qt::Key_PageUp) {
            Adim(tus == Qt::Key_PageDown);
        } else {
            return false;
        }
        return true;
    }
    // Enter runs round the card and never saves.
    QLineEdit* sonraki = nesne == UniteAd ? BiletFiyat : UniteKod;
    QLineEdit* onceki = nesne == UniteAd ? UniteKod : UniteAd;
    if (ileri)
        sonraki->setFocus();
    else if (tus == Qt::Key_Up)
        onceki->setFocus();
    else
        return false;
    return true;
}

void Unite_TANI::Guncelle()
{
    Komut([this] {
        const QList<QStringList> satirlar =
            UniteTanim::Liste(Genel(), UniteKod1->text(), UniteAd1->text(),
                              Op2->isChecked() ? UniteTanim::Sira::Ad : UniteTanim::Sira::Kod);
        // An empty result leaves the list as it was.
        if (!satirlar.isEmpty())
            T->Satirlar(satirlar);
    });
}

void Unite_TANI::Kaydet()
{
    DurumSatiri()->show();
    Durum(QStringLiteral(" Lütfen Bekleyiniz ... "));
    Komut([this] {
        try {
            UniteTanim::Kaydet(Genel(), UniteKod->text(), UniteAd->text());
        } catch (const Hata&) {
            Durum(QStringLiteral("  Kayıt yapılamıyor.  "));
            throw;
        }
        Durum(QStringLiteral("    Kayıt Başarılı  ... "));
        QApplication::beep();
    });
}

void Unite_TANI::Getir()
{
    std::optional<UniteSatiri> satir;
    bool okundu = false;
    Komut([&] {
        satir = UniteTanim::Getir(Genel(), UniteKod->text());
        okundu = true;
    });
    if (!okundu)
        return;
    if (satir) {
        UniteAd->setText(satir->UniteAd);
        UniteKod->setText(satir->UniteKod);
        UniteAd->setFocus();
        Guncelle();
    } else {
        // The typed code stays for a new unit.
        Temizle2();
        UniteKod->setFocus();
    }
}

void Unite_TANI::Sil()
{
    bool var = false;
    Komut([&] { var = UniteTanim::Var(Genel(), UniteKod->text()); });
    if (var
        && Sor(QStringLiteral("   Bu Üniteyi silmek istiyor musunuz ?    "), QStringLiteral("Siliniyor"),
               QMessageBox::Critical))
        Komut([this] {
            UniteTanim::Sil(Genel(), UniteKod->text());
            UniteKod->clear();
            Temizle();
            UniteKod->setFocus();
        });
    Guncelle();
}

void Unite_TANI::Temizle()
{
    Temizle2();
    Guncelle();
    Sonk();
}

void Unite_TANI::Temizle2()
{
    UniteAd->clear();
    BiletFiyat->clear();
}

void Unite_TANI::Sonk()
{
    Komut([this] { UniteKod->setText(UniteTanim::Sonk(Genel())); });
}

void Unite_TANI::Adim(bool yukari)
{
    UniteKod->setText(UniteTanim::Adim(UniteKod->text(), yukari));
    Getir();
}

void Unite_TANI::SatirGetir(int satir)
{
    UniteKod->setText(T->TextMatrix(satir, 0));
    Getir();
}

void Unite_TANI::Yaz()
{
    Yazdir([this](Yazici& p) { UniteTanim::ListeYazdir(p, Baglam().Baslik, T->Anlik()); });
}
