#include "hesap_k.h"

#include "kayit.h"
#include "liste_izgarasi.h"
#include "yukari_asagi.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace {

QLabel* etiket(const QString& metin, QWidget* kutu, QWidget* ebeveyn)
{
    auto* e = new QLabel(metin, ebeveyn);
    e->setBuddy(kutu);
    return e;
}

}

HESAP_K::HESAP_K(const CalismaBaglami& baglam, QWidget* parent) : KartEkrani(baglam, parent)
{
    setWindowTitle(QStringLiteral("Tek Düzen Hesap Planı"));
    auto* ana = new QVBoxLayout(this);
    const int harf = fontMetrics().averageCharWidth();

    Frame1 = Adli(new QGroupBox(this), "Frame1");
    HesapKod = Adli(new QLineEdit(Frame1), "HesapKod");
    HesapAd = Adli(new QLineEdit(Frame1), "HesapAd");
    HesapKod->setFixedWidth(harf * 24);
    HesapAd->setMinimumWidth(harf * 60);

    BT = new YukariAsagi(HesapKod, Frame1);
    BTYukari = BT->BTYukari;
    BTAsagi = BT->BTAsagi;
    Command1 = Adli(new QPushButton(QStringLiteral("Getir"), Frame1), "Command1");

    auto* kart = new QGridLayout(Frame1);
    auto* kodSirasi = new QHBoxLayout;
    kodSirasi->setSpacing(2);
    kodSirasi->addWidget(HesapKod);
    kodSirasi->addWidget(BT);
    kodSirasi->addSpacing(harf * 2);
    kodSirasi->addWidget(Command1);
    kodSirasi->addStretch();
    kart->addWidget(etiket(QStringLiteral("Hesap Kod"), HesapKod, Frame1), 0, 0);
    kart->addLayout(kodSirasi, 0, 1);
    kart->addWidget(etiket(QStringLiteral("Hesap Adı"), HesapAd, Frame1), 1, 0);
    kart->addWidget(HesapAd, 1, 1);
    kart->addWidget(new QLabel(QStringLiteral("Hesap Kod  ;    XXX XX XX XX XX XX XX formunda olmalı. "), Frame1),
                    2, 1);
    ana->addWidget(Frame1);

    auto* dugmeler = new QHBoxLayout;
    c2 = Adli(new QPushButton(QStringLiteral("F1  Kaydet"), this), "c2");
    CmdYaz = Adli(new QPushButton(QStringLiteral("F2  Yaz"), this), "CmdYaz");
    c3 = Adli(new QPushButton(QStringLiteral("F3 Liste"), this), "c3");
    c1 = Adli(new QPushButton(QStringLiteral("F4_ Yeni Hesap"), this), "c1");
    c5 = Adli(new QPushButton(QStringLiteral("F5_ Sil"), this), "c5");
    c9 = Adli(new QPushButton(QStringLiteral("Esc_ Çık"), this), "c9");
    for (QPushButton* d : {c2, CmdYaz, c3, c1, c5, c9})
        dugmeler->addWidget(d);
    dugmeler->addStretch();
    ana->addLayout(dugmeler);

    // The filters stand over the columns they narrow.
    T = Adli(new ListeIzgarasi(this), "T");
    T->setToolTip(QStringLiteral("Çift tıklayarak Hesap seçebilirsiniz. Tüm Liste için HesapNo Boş olmalı."));
    T->Basliklar({QStringLiteral("HesapKod"), QStringLiteral("Hesap Adı")});
    T->Genislikler({1600, 8000});
    HesapKod1 = Adli(new QLineEdit(this), "HesapKod1");
    HesapAd1 = Adli(new QLineEdit(this), "HesapAd1");
    // One order is always chosen: without one the list query has no column.
    Op1 = Adli(new QRadioButton(QStringLiteral("Hesap Kod"), this), "Op1");
    Op2 = Adli(new QRadioButton(QStringLiteral("Hesap Adı"), this), "Op2");
    Op1->setChecked(true);
    auto* siralar = new QButtonGroup(this);
    siralar->addButton(Op1);
    siralar->addButton(Op2);
    ana->addLayout(SuzgecSatiri(T, {HesapKod1, HesapAd1}, {Op1, Op2}));
    ana->addWidget(T, 1);

    OpDik = Adli(new QRadioButton(QStringLiteral("Dikey"), this), "OpDik");
    OpYat = Adli(new QRadioButton(QStringLiteral("Yatay"), this), "OpYat");
    OpDik->setChecked(true);
    auto* yonler = new QButtonGroup(this);
    yonler->addButton(OpDik);
    yonler->addButton(OpYat);
    YaziBoy = Adli(new QLineEdit(QStringLiteral("9"), this), "YaziBoy");
    YaziBoy->setToolTip(QStringLiteral("7 ile 12 Arası Rakam olmalı."));
    YaziBoy->setFixedWidth(harf * 5);
    auto* baski = new QHBoxLayout;
    baski->addWidget(OpDik);
    baski->addWidget(OpYat);
    baski->addSpacing(harf * 2);
    baski->addWidget(etiket(QStringLiteral("Yazı Boyu"), YaziBoy, this));
    baski->addWidget(YaziBoy);
    baski->addStretch();
    ana->addLayout(baski);

    DurumSatiriEkle(ana);
    // The status panel shows from a save until the mouse passes over the
    // screen, the card or the list.
    DurumSatiriniGizle();
    for (QWidget* w : {static_cast<QWidget*>(this), static_cast<QWidget*>(Frame1), T->viewport()}) {
        w->setMouseTracking(true);
        w->installEventFilter(this);
    }

    QWidget* sira[] = {HesapKod, HesapAd, Command1, c2,      CmdYaz, c3, c1,    c5,    c9,
                       HesapKod1, HesapAd1, Op1,   Op2, T, OpDik, OpYat, YaziBoy};
    for (size_t i = 1; i < std::size(sira); ++i)
        setTabOrder(sira[i - 1], sira[i]);
    HesapKod->installEventFilter(this);
    HesapAd->installEventFilter(this);

    const auto liste = [this] {
        HesapKod->clear();
        HesapKod->setFocus();
        Temizle();
        Listele();
    };
    const auto yeniHesap = [this] {
        HesapKod->clear();
        Temizle();
        HesapKod->setFocus();
    };
    c2->setEnabled(false);
    connect(HesapAd, &QLineEdit::textChanged, c2,
            [this](const QString& ad) { c2->setEnabled(!ad.trimmed().isEmpty()); });
    connect(c2, &QPushButton::clicked, this, [this] {
        if (!HesapKod->text().trimmed().isEmpty())
            Kaydet();
    });
    connect(CmdYaz, &QPushButton::clicked, this, &HESAP_K::Yaz);
    connect(c3, &QPushButton::clicked, this, liste);
    connect(c1, &QPushButton::clicked, this, yeniHesap);
    connect(c5, &QPushButton::clicked, this, &HESAP_K::Sil);
    connect(c9, &QPushButton::clicked, this, &QWidget::close);
    connect(Command1, &QPushButton::clicked, this, &HESAP_K::Getir);
    connect(BTYukari, &QToolButton::clicked, this, [this] { Adimla(HesapPlani::Adim::BTYukari); });
    connect(BTAsagi, &QToolButton::clicked, this, [this] { Adimla(HesapPlani::Adim::BTAsagi); });
    TusTanimla(QKeySequence(Qt::Key_F1), [this] { Kaydet(); });
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { Yaz(); });
    TusTanimla(QKeySequence(Qt::Key_F3), liste);
    TusTanimla(QKeySequence(Qt::Key_F4), yeniHesap);
    TusTanimla(QKeySequence(Qt::Key_F5), [this] { Sil(); });

    connect(HesapKod1, &QLineEdit::textChanged, this, &HESAP_K::Listele);
    connect(HesapAd1, &QLineEdit::textChanged, this, &HESAP_K::Listele);
    connect(siralar, &QButtonGroup::buttonClicked, this, &HESAP_K::Listele);
    connect(T, &ListeIzgarasi::CiftTiklandi, this, &HESAP_K::SatirGetir);

    Listele();
    HesapKod->setFocus();
}

bool HESAP_K::eventFilter(QObject* nesne, QEvent* olay)
{
    if (olay->type() == QEvent::MouseMove) {
        if (nesne == this || nesne == Frame1 || nesne == T->viewport())
            DurumSatiri()->hide();
        return false;
    }
    if (olay->type() != QEvent::KeyPress || (nesne != HesapKod && nesne != HesapAd))
        return false;
    const int tus = static_cast<QKeyEvent*>(olay)->key();
    const bool enter = tus == Qt::Key_Return || tus == Qt::Key_Enter;
    if (nesne == HesapAd) {
        if (tus == Qt::Key_Up)
            HesapKod->setFocus();
        return enter || tus == Qt::Key_Up || tus == Qt::Key_Down;
    }
    switch (tus) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Getir();
        return true;
    case Qt::Key_Down:
        Getir();
        HesapAd->setFocus();
        return true;
    case Qt::Key_Up:
        return true;
    case Qt::Key_Home:
        HesapKod->setText(QStringLiteral("1"));
        Getir();
        return true;
    case Qt::Key_PageDown:
        Adimla(HesapPlani::Adim::SayfaAsagi);
        return true;
    case Qt::Key_PageUp:
        Adimla(HesapPlani::Adim::SayfaYukari);
        return true;
    default:
        return false;
    }
}

void HESAP_K::Listele()
{
    Komut([this] {
        T->Satirlar(HesapPlani::Liste(Genel(), HesapKod1->text(), HesapAd1->text(),
                                      Op2->isChecked() ? HesapPlani::Sira::HesapAd : HesapPlani::Sira::HesapKod));
    });
}

void HESAP_K::Getir()
{
    if (HesapKod->text().isEmpty())
        return;
    std::optional<QString> ad;
    try {
        MesgulImlec imlec;
        ad = HesapPlani::Getir(Genel(), HesapKod->text());
    } catch (const Hata&) {
        Bildir(QStringLiteral("Kayıt getirilemiyor."), windowTitle(), QMessageBox::Critical);
        return;
    }
    if (ad) {
        HesapAd->setText(*ad);
    } else {
        HesapAd->clear();
        HesapAd->setFocus();
    }
    Listele();
}

void HESAP_K::Kaydet()
{
    DurumSatiri()->show();
    Durum(QStringLiteral("    Lütfen Bekleyin ..   "));
    try {
        MesgulImlec imlec;
        HesapPlani::Kaydet(Genel(), HesapKod->text(), HesapAd->text());
    } catch (const Hata&) {
        const QString mesaj = QStringLiteral("  Kayıt yapılamıyor.  ");
        Durum(mesaj);
        Bildir(mesaj, windowTitle(), QMessageBox::Critical);
        return;
    }
    Durum(QStringLiteral("    Kayıt Başarılı  ..  "));
}

void HESAP_K::Sil()
{
    bool var = false;
    Komut([&] { var = HesapPlani::Var(Genel(), HesapKod->text()); });
    if (!var
        || !Sor(QStringLiteral(" Bu Hesap No yu Silmek istiyor musunuz ?"), QStringLiteral("Siliniyor"),
                QMessageBox::Critical))
        return;
    Komut([this] {
        HesapPlani::Sil(Genel(), HesapKod->text());
        HesapKod->clear();
        Temizle();
        HesapKod->setFocus();
    });
}

void HESAP_K::Temizle()
{
    HesapAd->clear();
}

void HESAP_K::Adimla(HesapPlani::Adim adim)
{
    HesapPlani::AdimSonucu sonuc;
    try {
        sonuc = HesapPlani::KodAdimi(HesapKod->text(), adim);
    } catch (const Hata& h) {
        Bildir(h.Mesaj(), windowTitle(), QMessageBox::Critical);
        return;
    }
    HesapKod->setText(sonuc.HesapKod);
    if (sonuc.Getir)
        Getir();
}

void HESAP_K::SatirGetir(int satir)
{
    if (satir < 1 || Val(T->TextMatrix(satir, 0)) <= 0)
        return;
    HesapKod->setText(T->TextMatrix(satir, 0));
    HesapAd->setText(T->TextMatrix(satir, 1));
}

void HESAP_K::Yaz()
{
    const double punto = Val(YaziBoy->text());
    if (punto <= 0) {
        Bildir(YaziBoy->toolTip(), windowTitle(), QMessageBox::Critical);
        return;
    }
    const Izgara izgara = T->Anlik();
    const int yon = OpYat->isChecked() ? 2 : 1;
    Yazdir([&](Yazici& p) { HesapPlani::Yaz(p, izgara, yon, punto); });
}
