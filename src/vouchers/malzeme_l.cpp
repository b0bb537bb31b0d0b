#include "malzeme_l.h"

#include "hata.h"
#include "liste_izgarasi.h"
#include "malzeme_alici.h"
#include "malzeme_listesi.h"
#include "saat.h"
#include "veritabani.h"

#include <QApplication>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

const QString tarihBicimi = QStringLiteral("dd.MM.yyyy");

}

Malzeme_L::Malzeme_L(const CalismaBaglami& baglam, QWidget* parent) : KartEkrani(baglam, parent)
{
    setWindowTitle(QStringLiteral("Malzeme Liste"));
    auto* ana = new QVBoxLayout(this);

    m_kriterler = new QWidget(this);
    auto* kriter = new QGridLayout(m_kriterler);
    kriter->setContentsMargins(0, 0, 0, 0);
    const auto kutu = [this](QLineEdit*& k, const char* ad) { k = Adli(new QLineEdit(m_kriterler), ad); };
    const auto secenek = [this](QRadioButton*& r, const char* ad, const QString& baslik) {
        r = Adli(new QRadioButton(baslik, m_kriterler), ad);
    };
    const auto etiketli = [&](int satir, int sutun, const QString& metin, QWidget* k) {
        auto* e = new QLabel(metin, m_kriterler);
        e->setBuddy(k);
        kriter->addWidget(e, satir, sutun);
        kriter->addWidget(k, satir, sutun + 1);
    };
    kutu(Tarih, "Tarih");
    kutu(Tarih1, "Tarih1");
    Tarih->setText(QStringLiteral("01.01.1900"));
    Tarih1->setText(QStringLiteral("31.12.") + QString::number(Saat::Bugun().year()));
    etiketli(0, 0, QStringLiteral("Başlama Tarihi"), Tarih);
    etiketli(1, 0, QStringLiteral("Bitiş Tarihi"), Tarih1);

    auto* hareket = new QButtonGroup(this);
    secenek(Option5, "Option5", QStringLiteral("Tümü"));
    secenek(Option3, "Option3", QStringLiteral("Gelen"));
    secenek(Option4, "Option4", QStringLiteral("Çıkan"));
    Option3->setToolTip(QStringLiteral("Gelen, Çıkandan Büyük olanları listeler."));
    Option4->setToolTip(QStringLiteral("Çıkan işlemi olan kayıtları listeler."));
    Option5->setChecked(true);
    auto* hasar = new QButtonGroup(this);
    secenek(Option2, "Option2", QStringLiteral("Hasarsız"));
    secenek(Option1, "Option1", QStringLiteral("HasarKayıtYok"));
    HasarCheck = Adli(new QCheckBox(QStringLiteral("Hasarlı(Düşülen) Malzeme"), m_kriterler), "HasarCheck");
    int sutun = 2;
    for (QRadioButton* r : {Option5, Option3, Option4}) {
        hareket->addButton(r);
        kriter->addWidget(r, 0, sutun++);
    }
    sutun = 2;
    for (QRadioButton* r : {Option2, Option1}) {
        hasar->addButton(r);
        kriter->addWidget(r, 1, sutun++);
    }
    kriter->addWidget(HasarCheck, 1, sutun);

    kutu(FisNo, "FisNo");
    kutu(BirimFiyat, "BirimFiyat");
    kutu(Unite, "Unite");
    kutu(KimeVerildigi, "KimeVerildigi");
    kutu(Ozellik, "Ozellik");
    kutu(HesapKod, "HesapKod");
    etiketli(2, 0, QStringLiteral("FişNo"), FisNo);
    etiketli(2, 2, QStringLiteral("BirimFiyat"), BirimFiyat);
    etiketli(2, 4, QStringLiteral("Ünite"), Unite);
    etiketli(3, 0, QStringLiteral("KimeVerildiği"), KimeVerildigi);
    etiketli(3, 2, QStringLiteral("Özellik-Marka"), Ozellik);
    etiketli(3, 4, QStringLiteral("HesapKod"), HesapKod);
    const auto combo = [this](QComboBox*& c, const char* ad) {
        c = Adli(new QComboBox(m_kriterler), ad);
        c->setEditable(true);
        c->setInsertPolicy(QComboBox::NoInsert);
        c->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    };
    combo(Ozellik4, "Ozellik4");
    combo(NeredenGeldigi, "NeredenGeldigi");
    etiketli(4, 0, QStringLiteral("Özellik"), Ozellik4);
    etiketli(4, 2, QStringLiteral("Nereden Geldiği"), NeredenGeldigi);

    auto* siralar = new QButtonGroup(this);
    auto* sira = new QHBoxLayout;
    sira->addWidget(new QLabel(QStringLiteral("Sıra :"), m_kriterler));
    QRadioButton** oplar[] = {&Op1, &Op2, &Op3, &Op4, &Op5, &Op6, &Op7, &Op8};
    const char* adlar[] = {"Op1", "Op2", "Op3", "Op4", "Op5", "Op6", "Op7", "Op8"};
    const QStringList sirabasliklari{QStringLiteral("FişNo"),       QStringLiteral("Fiş Tarihi"),
                                     QStringLiteral("MalzemeSınıfAdı"), QStringLiteral("BirimFiyat"),
                                     QStringLiteral("HesapKod"),    QStringLiteral("Özellik-Marka"),
                                     QStringLiteral("Ünite"),       QStringLiteral("KimeVerildiği")};
    for (int i = 0; i < 8; ++i) {
        secenek(*oplar[i], adlar[i], sirabasliklari[i]);
        siralar->addButton(*oplar[i], i);
        sira->addWidget(*oplar[i]);
    }
    Op1->setChecked(true);
    Check1 = Adli(new QCheckBox(QStringLiteral("Artan Sıra"), m_kriterler), "Check1");
    Check1->setChecked(true);
    sira->addWidget(Check1);
    sira->addStretch();
    kriter->addLayout(sira, 5, 0, 1, 8);
    kutu(YaziBoy, "YaziBoy");
    YaziBoy->setText(QStringLiteral("8"));
    YaziBoy->setToolTip(QStringLiteral("8,9,10,12 gibi rakam olmalı."));
    YaziBoy->setMaximumWidth(fontMetrics().averageCharWidth() * 5);
    etiketli(4, 4, QStringLiteral("Yazı Boyu"), YaziBoy);
    kriter->setColumnStretch(8, 1);
    ana->addWidget(m_kriterler);

    Label5 = new QLabel(QStringLiteral("Çift Tıklayarak Fiş Seçebilirsiniz."), this);
    Label5->setObjectName(QStringLiteral("Label5"));
    ana->addWidget(Label5);
    T = Adli(new ListeIzgarasi(this), "T");
    T->Genislikler(MalzemeListesi::Genislikler());
    T->Basliklar(MalzemeListesi::Basliklar());
    ana->addWidget(T, 1);
    T2 = Adli(new ListeIzgarasi(this), "T2");
    T2->Genislikler({900, 1400, 1100, 1400, 1100, 1400});
    T2->horizontalHeader()->hide();
    T2->setFixedHeight(T2->verticalHeader()->defaultSectionSize() + 2 * T2->frameWidth());
    T2->setFocusPolicy(Qt::NoFocus);
    ana->addWidget(T2);
    Picture1 = Adli(new QLabel(QStringLiteral("  Lütfen Bekleyiniz.  "), this), "Picture1");
    Picture1->setFrameShape(QFrame::Box);
    Picture1->hide();
    ana->addWidget(Picture1);

    auto* dugmeler = new QHBoxLayout;
    const auto dugme = [&](QPushButton*& d, const char* ad, const QString& baslik) {
        d = Adli(new QPushButton(baslik, this), ad);
        dugmeler->addWidget(d);
    };
    dugme(Command12, "Command12", QStringLiteral("F2_Yaz"));
    dugme(Command8, "Command8", QStringLiteral("F3 Yeniden Liste"));
    dugme(Boyut, "Boyut", QStringLiteral("F5_ Kriterleri Gizle"));
    dugmeler->addStretch();
    ana->addLayout(dugmeler);
    DurumSatiriEkle(ana);

    for (QLineEdit* k : {Tarih, Tarih1, FisNo, BirimFiyat, Unite, KimeVerildigi, Ozellik, HesapKod, YaziBoy})
        connect(k, &QLineEdit::textChanged, this, &Malzeme_L::DegisinceListe);
    for (QComboBox* c : {Ozellik4, NeredenGeldigi})
        connect(c, &QComboBox::currentTextChanged, this, &Malzeme_L::DegisinceListe);
    for (QButtonGroup* g : {hareket, hasar, siralar})
        connect(g, &QButtonGroup::buttonToggled, this, [this](QAbstractButton*, bool secili) {
            if (secili)
                DegisinceListe();
        });
    for (QCheckBox* c : {HasarCheck, Check1})
        connect(c, &QCheckBox::toggled, this, &Malzeme_L::DegisinceListe);
    connect(T, &ListeIzgarasi::CiftTiklandi, this, [this] {
        if (T->Row() < 1)
            return;
        SatirBilgisi();
        Sec();
    });
    connect(T, &ListeIzgarasi::EnterBasildi, this, &Malzeme_L::Sec);
    connect(Command12, &QPushButton::clicked, this, &Malzeme_L::Yaz);
    connect(Command8, &QPushButton::clicked, this, &Malzeme_L::Liste);
    connect(Boyut, &QPushButton::clicked, this, &Malzeme_L::Boyutlandir);
    TusTanimla(QKeySequence(Qt::Key_F2), [this] { Yaz(); });
    TusTanimla(QKeySequence(Qt::Key_F3), [this] { Liste(); });
    TusTanimla(QKeySequence(Qt::Key_F5), [this] { Boyutlandir(); });

    T->installEventFilter(this);
    for (QWidget* w : m_kriterler->findChildren<QWidget*>())
        w->installEventFilter(this);
    resize(1200, 760);
}

bool Malzeme_L::event(QEvent* olay)
{
    if (olay->type() == QEvent::WindowActivate)
        Liste();
    return KartEkrani::event(olay);
}

bool Malzeme_L::eventFilter(QObject* nesne, QEvent* olay)
{
    if (nesne == T) {
        if (olay->type() == QEvent::FocusIn)
            SatirBilgisi();
        return KartEkrani::eventFilter(nesne, olay);
    }
    if (olay->type() == QEvent::FocusIn) {
        // The exact-match combos offer what the file holds now.
        auto* c = qobject_cast<QComboBox*>(nesne);
        if (c == Ozellik4 || c == NeredenGeldigi) {
            const QString metin = c->currentText();
            QStringList ogeler;
            Komut([&] {
                ogeler = c == Ozellik4 ? MalzemeListesi::Ozellikler(Ayniyat())
                                       : MalzemeListesi::NeredenGeldiler(Ayniyat());
            });
            const QSignalBlocker dur(c);
            c->clear();
            c->addItems(ogeler);
            c->setEditText(metin);
        }
    } else if (OkTusuListeye(T, olay)) {
        return true;
    }
    return KartEkrani::eventFilter(nesne, olay);
}

void Malzeme_L::DegisinceListe()
{
    // Filters set before the screen is shown wait for its activation.
    if (isVisible())
        Liste();
}

void Malzeme_L::Liste()
{
    const QDate bas = QDate::fromString(Tarih->text(), tarihBicimi);
    const QDate son = QDate::fromString(Tarih1->text(), tarihBicimi);
    if (!bas.isValid() || !son.isValid()) {
        Durum(QStringLiteral(" Tarihi gg.aa.yyyy biçiminde yazınız. "));
        return;
    }
    MalzemeListesi::Kosullar k;
    k.Tarih = bas;
    k.Tarih1 = son;
    k.hareket = Option3->isChecked()   ? MalzemeListesi::Hareket::Gelen
                : Option4->isChecked() ? MalzemeListesi::Hareket::Cikan
                                       : MalzemeListesi::Hareket::Tumu;
    k.HasarCheck = HasarCheck->isChecked();
    k.Option1 = Option1->isChecked();
    k.Option2 = Option2->isChecked();
    k.FisNo = FisNo->text();
    k.BirimFiyat = BirimFiyat->text();
    k.Unite = Unite->text();
    k.KimeVerildigi = KimeVerildigi->text();
    k.Ozellik = Ozellik->text();
    k.HesapKod = HesapKod->text();
    k.Ozellik4 = Ozellik4->currentText();
    k.NeredenGeldigi = NeredenGeldigi->currentText();
    const QRadioButton* oplar[] = {Op1, Op2, Op3, Op4, Op5, Op6, Op7, Op8};
    for (int i = 0; i < 8; ++i)
        if (oplar[i]->isChecked())
            k.sira = MalzemeListesi::Sira(i);
    k.artan = Check1->isChecked();

    Picture1->show();
    Picture1->repaint();
    Durum(QString());
    Komut([&] {
        const MalzemeListesi::Komut komut = MalzemeListesi::Liste(k);
        T->Doldur(Ayniyat(), komut.sql, komut.degerler);
    });
    Picture1->hide();
    if (const auto boy = MalzemeListesi::YaziBoyu(YaziBoy->text())) {
        QFont yazi = T->font();
        yazi.setPointSize(*boy);
        T->setFont(yazi);
    }
    T->Basliklar(MalzemeListesi::Basliklar());
    // The first line stands current after a refresh, ready to be picked.
    if (T->Okunan() > 0) {
        T->SatirSec(1);
        if (T->hasFocus())
            SatirBilgisi();
    }
}

void Malzeme_L::SatirBilgisi()
{
    const int satir = T->Row();
    if (satir < 1)
        return;
    Komut([&] {
        T->HucreYaz(satir, 0, MalzemeListesi::SinifAdi(Genel(), T->TextMatrix(satir, 2)));
        T2->Satirlar({MalzemeListesi::Toplamlar(Ayniyat(), T->TextMatrix(satir, 1))});
    });
}

void Malzeme_L::Sec()
{
    const int satir = T->Row();
    if (Hangi != u"Fis_K" || satir < 1 || !m_alici)
        return;
    const auto hucre = [&](int sutun) { return T->TextMatrix(satir, sutun); };
    m_alici->MalzemeAl(hucre(0), hucre(1), hucre(2), hucre(3), hucre(5), hucre(12), T2->TextMatrix(1, 1),
                       T2->TextMatrix(1, 3), T2->TextMatrix(1, 5));
    close();
}

void Malzeme_L::Yaz()
{
    Izgara liste;
    Komut([&] { liste = T->Anlik(); });
    Yazdir([&](Yazici& p) { MalzemeListesi::Yazdir(p, liste); });
}

void Malzeme_L::Boyutlandir()
{
    m_kriterler->setVisible(!m_kriterler->isVisible());
}
