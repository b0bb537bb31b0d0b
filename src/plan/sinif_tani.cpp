#include "sinif_tani.h"

#include "bicim.h"
#include "hata.h"
#include "liste_izgarasi.h"
#include "sinif_alici.h"
#include "sinif_tanim.h"
#include "yukari_asagi.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>

namespace {

QLabel* yazi(const QString& metin, QWidget* ebeveyn)
{
    auto* etiket = new QLabel(metin, ebeveyn);
    etiket->setTextFormat(Qt::PlainText);
    etiket->setWordWrap(true);
    return etiket;
}

// A plan grid as wide as its columns, without a heading row.
ListeIzgarasi* planIzgarasi(const QString& ad, const QList<int>& twipler, QWidget* ebeveyn)
{
    auto* izgara = new ListeIzgarasi(ebeveyn);
    izgara->setObjectName(ad);
    izgara->Genislikler(twipler);
    izgara->horizontalHeader()->hide();
    int genislik = 2 * izgara->frameWidth() + izgara->verticalScrollBar()->sizeHint().width();
    for (int twip : twipler)
        genislik += twip * izgara->logicalDpiX() / 1440;
    izgara->setFixedWidth(genislik);
    return izgara;
}

}

SinifTani::SinifTani(const CalismaBaglami& baglam, QWidget* parent) : KartEkrani(baglam, parent)
{
    setWindowTitle(QStringLiteral("Malzeme Sınıf Tanımlama"));
    auto* ana = new QVBoxLayout(this);

    ana->addWidget(yazi(QStringLiteral("       Ana Kod : 150                    1. Detay Kod : 150 01           "
                                       "2. Detay Kod : 150 01 04      3. Detay Kod : 150 01 04 001"),
                        this));
    ana->addWidget(yazi(QStringLiteral("Örnek :                                  Hesap kod : 150 05  01 001      "
                                       "Malzeme Adı : Sıvı Deterjan  Hesap kod : 150 05  01 002      "
                                       "Malzeme Adı : Toz Deterjan"),
                        this));

    ana->addWidget(yazi(QStringLiteral("Oklarla Dolaşabilirsiniz."), this));
    auto* plan = new QHBoxLayout;
    T2 = planIzgarasi(QStringLiteral("T2"), {500, 1890}, this);
    T3 = planIzgarasi(QStringLiteral("T3"), {770, 3400}, this);
    T4 = planIzgarasi(QStringLiteral("T4"), {1100, 4300}, this);
    plan->addWidget(T2);
    plan->addWidget(T3);
    plan->addWidget(T4);
    plan->addStretch();
    ana->addLayout(plan, 1);

    auto* orta = new QHBoxLayout;
    ana->addLayout(orta, 2);
    auto* kart = new QGridLayout;
    orta->addLayout(kart);
    int satir = 0;
    const auto kutu = [&](QLineEdit*& k, const QString& ad, const QString& etiket) {
        k = new QLineEdit(this);
        k->setObjectName(ad);
        auto* e = new QLabel(etiket, this);
        e->setBuddy(k);
        kart->addWidget(e, satir, 0);
        kart->addWidget(k, satir++, 1);
    };
    kutu(HesapNo, QStringLiteral("HesapNo"), QStringLiteral("3.Detay Hesap Kod"));
    kutu(MalzAdi, QStringLiteral("MalzAdi"), QStringLiteral("Malzeme Sınıfı Adı"));
    kutu(Birimi, QStringLiteral("Birimi"), QStringLiteral("Birimi"));
    kutu(KDV1, QStringLiteral("KDV1"), QStringLiteral("KDV Oranı"));
    kutu(Barkod, QStringLiteral("Barkod"), QStringLiteral("Barkod"));
    kutu(Stok, QStringLiteral("Stok"), QStringLiteral("EnAz Stok"));
    kutu(EskiKod, QStringLiteral("EskiKod"), QStringLiteral("Eski Kod"));
    EskiKod->setToolTip(QStringLiteral("Eski Programdaki Kod yazılır."));
    HesapNo->setMinimumWidth(fontMetrics().averageCharWidth() * 18);
    MalzAdi->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    for (QLineEdit* k : {Birimi, KDV1, Stok})
        k->setMaximumWidth(fontMetrics().averageCharWidth() * 12);

    BT = new YukariAsagi(HesapNo, this);
    BTYukari = BT->BTYukari;
    BTAsagi = BT->BTAsagi;
    kart->addWidget(BT, 0, 2, Qt::AlignLeft);

    kart->addWidget(yazi(QStringLiteral("3. Detay Hesap Kod  ;    XXX XX XX XXX formunda olmalı. "), this), satir++,
                    0, 1, 3);
    kart->addWidget(yazi(QStringLiteral("3. Detay Hesap Kod  Değişmez. Siliniz ve Yeniden Kayıt Yapınız."), this),
                    satir++, 0, 1, 3);
    kart->setRowStretch(satir, 1);

    auto* liste = new QVBoxLayout;
    orta->addLayout(liste, 1);
    auto* suzgecler = new QHBoxLayout;
    liste->addLayout(suzgecler);
    const auto suzgec = [&](QRadioButton*& secenek, const QString& secenekAdi, const QString& baslik,
                            QLineEdit*& metin, const QString& metinAdi) {
        secenek = new QRadioButton(baslik, this);
        secenek->setObjectName(secenekAdi);
        metin = new QLineEdit(this);
        metin->setObjectName(metinAdi);
        suzgecler->addWidget(secenek);
        suzgecler->addWidget(metin, 1);
        connect(secenek, &QRadioButton::toggled, this, [this](bool secili) {
            if (secili)
                Listele();
        });
        connect(metin, &QLineEdit::textChanged, this, &SinifTani::Listele);
    };
    suzgec(Opt1, QStringLiteral("Opt1"), QStringLiteral("Hesap Kod"), HesapNo1, QStringLiteral("HesapNo1"));
    suzgec(Opt2, QStringLiteral("Opt2"), QStringLiteral("Malzeme Sınıf Adı"), MalzemeAd1,
           QStringLiteral("MalzemeAd1"));
    suzgec(Opt3, QStringLiteral("Opt3"), QStringLiteral("Eski Sınıf Kod"), EskiKod1, QStringLiteral("EskiKod1"));
    T = new ListeIzgarasi(this);
    T->setObjectName(QStringLiteral("T"));
    T->Genislikler(SinifTanim::Genislikler());
    T->Basliklar(SinifTanim::Basliklar());
    liste->addWidget(T, 1);

    auto* dugmeler = new QHBoxLayout;
    const auto dugme = [&](QPushButton*& d, const QString& ad, const QString& baslik) {
        d = new QPushButton(baslik, this);
        d->setObjectName(ad);
        dugmeler->addWidget(d);
    };
    dugme(c2, QStringLiteral("c2"), QStringLiteral("F1  Kaydet"));
    dugme(CmdYaz, QStringLiteral("CmdYaz"), QStringLiteral("F2  Yaz"));
    dugme(c3, QStringLiteral("c3"), QStringLiteral("F3 Detaylı Liste"));
    dugme(c1, QStringLiteral("c1"), QStringLiteral("F4_ Boş Hesap Sil"));
    dugme(c5, QStringLiteral("c5"), QStringLiteral("F5_ Sil"));
    dugme(c9, QStringLiteral("c9"), QStringLiteral("Esc_ Çık"));
    dugmeler->addStretch();
    dugme(Command2, QStringLiteral("Command2"), QStringLiteral("Hesap Kod Değiştirme Alanına Gönder"));
    ana->addLayout(dugmeler);
    DurumSatiriEkle(ana);

    const QList<QWidget*> sekmeSirasi{HesapNo, MalzAdi, Birimi, KDV1, Barkod, Stok, EskiKod, T2,
                                      T3, T4, Opt1, HesapNo1, Opt2, MalzemeAd1, Opt3, EskiKod1, T,
                                      c2, CmdYaz, c3, c1, c5, c9, Command2};
    for (qsizetype i = 1; i < sekmeSirasi.size(); ++i)
        setTabOrder(sekmeSirasi[i - 1], sekmeSirasi[i]);
    for (QLineEdit* k : {HesapNo, MalzAdi, Birimi, KDV1, Barkod})
        k->installEventFilter(this);

    connect(T2, &ListeIzgarasi::HucreDegisti, this, [this](int satir, int) { AnaSecildi(satir); });
    connect(T3, &ListeIzgarasi::HucreDegisti, this, [this](int satir, int) { BirinciSecildi(satir); });
    connect(T4, &ListeIzgarasi::HucreDegisti, this, &SinifTani::IkinciSecildi);
    connect(T, &ListeIzgarasi::CiftTiklandi, this, &SinifTani::ListedenAl);
    connect(BTYukari, &QToolButton::clicked, this, [this] { Adim(HesapPlani::Adim::BTYukari); });
    connect(BTAsagi, &QToolButton::clicked, this, [this] { Adim(HesapPlani::Adim::BTAsagi); });

    const auto f3 = [this] { Bildir(QStringLiteral("Bu bölüm henüz hazır değil.")); };
    connect(c2, &QPushButton::clicked, this, [this] {
        if (HesapNo->text().trimmed().isEmpty() || Kaydet())
            KayitSonu();
    });
    connect(CmdYaz, &QPushButton::clicked, this, &SinifTani::Yaz);
    connect(c3, &QPushButton::clicked, this, f3);
    connect(c1, &QPushButton::clicked, this, &SinifTani::Sil2);
    connect(c5, &QPushButton::clicked, this, &SinifTani::Sil);
    connect(c9, &QPushButton::clicked, this, &QWidget::close);
    connect(Command2, &QPushButton::clicked, this, [this] {
        if (Hangi == u"S" && KodGonder)
            KodGonder(HesapNo->text());
        close();
    });
    // F1 saves even with an empty code, the button does not.
    TusTanimla(QKeySequence(Qt::Key_F1), [this] {
        if (Kaydet())
            KayitSonu();
    });
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { Yaz(); });
    TusTanimla(QKeySequence(Qt::Key_F3), f3);
    TusTanimla(QKeySequence(Qt::Key_F4), [this] { Sil2(); });
    TusTanimla(QKeySequence(Qt::Key_F5), [this] { Sil(); });

    T2->Satirlar(SinifTanim::AnaSiniflar());
    Opt1->setChecked(true);  // runs Listele
    HesapNo->setFocus();
}

bool SinifTani::eventFilter(QObject* nesne, QEvent* olay)
{
    if (olay->type() != QEvent::KeyPress)
        return KartEkrani::eventFilter(nesne, olay);
    const int tus = static_cast<QKeyEvent*>(olay)->key();
    const bool enter = tus == Qt::Key_Return || tus == Qt::Key_Enter;
    if (nesne == HesapNo) {
        if (enter || tus == Qt::Key_Down) {
            Getir();
            if (tus == Qt::Key_Down)
                MalzAdi->setFocus();
            return true;
        }
        if (tus == Qt::Key_Home)
            Getir();
        else if (tus == Qt::Key_PageDown)
            Adim(HesapPlani::Adim::SayfaAsagi);
        else if (tus == Qt::Key_PageUp)
            Adim(HesapPlani::Adim::SayfaYukari);
        return tus == Qt::Key_Up || tus == Qt::Key_PageDown || tus == Qt::Key_PageUp;
    }
    if (nesne == MalzAdi) {
        if (tus == Qt::Key_Up)
            HesapNo->setFocus();
        return enter || tus == Qt::Key_Up || tus == Qt::Key_Down;
    }
    // Moving down through unit, tax rate and bar code saves at every step.
    const struct
    {
        QLineEdit* kutu;
        QLineEdit* yukari;
        QLineEdit* asagi;
        bool enterKaydeder;
    } yol[] = {{Birimi, MalzAdi, KDV1, true}, {KDV1, Birimi, Barkod, false}, {Barkod, KDV1, nullptr, false}};
    for (const auto& y : yol) {
        if (nesne != y.kutu)
            continue;
        if (tus == Qt::Key_Up) {
            y.yukari->setFocus();
            return true;
        }
        if (tus == Qt::Key_Down || (enter && y.enterKaydeder)) {
            Kaydet();
            if (y.asagi)
                y.asagi->setFocus();
            return true;
        }
    }
    return KartEkrani::eventFilter(nesne, olay);
}

void SinifTani::DurumYaz(const QString& metin, bool beyaz)
{
    DurumSatiri()->setStyleSheet(beyaz ? QStringLiteral("color: white; background: palette(highlight);") : QString());
    Durum(metin);
}

bool SinifTani::Dene(const std::function<void()>& is, const QString& basarisiz)
{
    bool oldu = false;
    Komut([&] {
        try {
            is();
        } catch (const Hata&) {
            DurumYaz(basarisiz);
            throw;
        }
        oldu = true;
    });
    return oldu;
}

void SinifTani::Listele()
{
    const SinifTanim::Sira sira = Opt2->isChecked()   ? SinifTanim::Sira::MalzAdi
                                  : Opt3->isChecked() ? SinifTanim::Sira::EskiKod
                                                      : SinifTanim::Sira::HesapKod;
    Komut([&] {
        T->Satirlar(SinifTanim::Liste(Genel(), HesapNo1->text(), MalzemeAd1->text(), EskiKod1->text(),
                                      sira));
        T->Basliklar(SinifTanim::Basliklar());
        // The widths were made for a smaller font: a code is not to be cut.
        const int sigan = static_cast<const QAbstractItemView*>(T)->sizeHintForColumn(0);
        T->setColumnWidth(0, qMax(T->columnWidth(0), sigan));
    });
}

bool SinifTani::Kaydet()
{
    DurumYaz(QStringLiteral("   Lütfen Bekleyin ..   "));
    const SinifSatiri satir{HesapNo->text(), MalzAdi->text(), Birimi->text(), KDV1->text(),
                            Barkod->text(),  Stok->text(),    EskiKod->text()};
    if (!Dene([&] { SinifTanim::Kaydet(Genel(), satir); }, QStringLiteral("  Kayıt yapılamıyor.  ")))
        return false;
    DurumYaz(QStringLiteral("    Kayıt Başarılı  ..  "));
    return true;
}

void SinifTani::KayitSonu()
{
    if (Hangi == u"Fis_K2" && m_alici) {
        SinifAlici* alici = m_alici;
        alici->SinifListesiYenile();
        alici->SinifAl(HesapNo->text(), MalzAdi->text(), Birimi->text(), KDV1->text());
        close();
        alici->OdakAl();
        return;
    }
    Listele();
}

void SinifTani::Getir()
{
    if (HesapNo->text().isEmpty())
        return;
    std::optional<SinifSatiri> satir;
    if (!Dene([&] { satir = SinifTanim::Getir(Genel(), HesapNo->text()); },
              QStringLiteral("Kayıt getirilemiyor.")))
        return;
    if (!satir) {
        MalzAdi->clear();
        MalzAdi->setFocus();
        return;
    }
    MalzAdi->setText(satir->MalzAdi);
    Birimi->setText(satir->Birimi);
    KDV1->setText(satir->KDV1);
    Barkod->setText(satir->Barkod);
    Stok->setText(satir->Stok);
    EskiKod->setText(satir->EskiKod);
    Listele();
}

void SinifTani::Sil()
{
    const QString kod = HesapNo->text();
    bool var = false;
    if (!Dene([&] { var = SinifTanim::Var(Genel(), kod); }))
        return;
    if (var && Sor(QStringLiteral("\n Bu Malzeme Fişlerde Kullanılmış ise Silindikten sonra , Defter ve Raporlarda "
                                  "görülmeyecek. \nSilmek istiyor musunuz ?"),
                   QStringLiteral("Siliniyor"), QMessageBox::Critical)) {
        if (!Dene([&] { SinifTanim::Sil(Genel(), kod); }))
            return;
        Temizle();
    }
    // Shown after No as well, as it always was.
    DurumYaz(QStringLiteral("   Malzeme Kaydı Silindi  ..  "), true);
    Listele();
}

void SinifTani::Sil2()
{
    if (Sor(QStringLiteral("  Silmek istiyor musunuz ?"), QStringLiteral("  Siliniyor.  "), QMessageBox::Critical)) {
        bool silindi = false;
        if (!Dene([&] {
                silindi = SinifTanim::Sil2(Genel(), HesapNo->text(), MalzAdi->text(), EskiKod->text());
            }))
            return;
        if (silindi)
            Temizle();
    }
    DurumYaz(QStringLiteral("   Malzeme Kaydı Silindi  ..  "), true);
    Listele();
}

void SinifTani::Temizle()
{
    HesapNo->clear();
    EskiKod->clear();
    MalzAdi->clear();
}

void SinifTani::Adim(HesapPlani::Adim adim)
{
    bool getir = false;
    Komut([&] {
        const HesapPlani::AdimSonucu sonuc = HesapPlani::KodAdimi(HesapNo->text(), adim);
        HesapNo->setText(sonuc.HesapKod);
        getir = sonuc.Getir;
    });
    if (getir)
        Getir();
}

void SinifTani::AnaSecildi(int satir)
{
    T3->Temizle();
    T4->Temizle();
    Komut([&] { T3->Satirlar(SinifTanim::BirinciDetaylar(Genel(), T2->TextMatrix(satir, 0))); });
}

void SinifTani::BirinciSecildi(int satir)
{
    T4->Temizle();
    const QString kod = T3->TextMatrix(satir, 0);
    if (!kod.isEmpty())
        Komut([&] { T4->Satirlar(SinifTanim::IkinciDetaylar(Genel(), kod)); });
}

void SinifTani::IkinciSecildi(int satir, int sutun)
{
    HesapNo->clear();
    // The clicked column counts: the name column gives the name plus " 001".
    Komut([&] { HesapNo->setText(SinifTanim::SonrakiKod(Genel(), T4->TextMatrix(satir, sutun))); });
}

void SinifTani::ListedenAl(int satir)
{
    if (satir < 1)
        return;
    // Only a number of 0 or less stops the copy: a code with blanks, or the
    // empty code of a class brought over from the earlier version, does not.
    const std::optional<double> sayi = SayiDegeri(T->TextMatrix(satir, 0));
    if (sayi && *sayi <= 0)
        return;
    HesapNo->setText(T->TextMatrix(satir, 0));
    MalzAdi->setText(T->TextMatrix(satir, 1));
    KDV1->setText(T->TextMatrix(satir, 2));
    EskiKod->setText(T->TextMatrix(satir, 3));
}

void SinifTani::Yaz()
{
    Yazdir([this](Yazici& p) { SinifTanim::ListeYazdir(p, T->Anlik()); });
}
