#include "dusum_liste_ekrani.h"

#include "izgara.h"
#include "liste_izgarasi.h"
#include "tarih_secici.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

DusumListeEkrani::DusumListeEkrani(const CalismaBaglami& baglam, const QString& baslik, QWidget* parent)
    : KartEkrani(baglam, parent)
{
    setWindowTitle(baslik);
    auto* ana = new QVBoxLayout(this);
    auto* orta = new QHBoxLayout;
    ana->addLayout(orta, 1);
    T = Adli(new ListeIzgarasi(this), "T");
    orta->addWidget(T, 1);
    m_yan = new QVBoxLayout;
    orta->addLayout(m_yan);
    m_panel = new QWidget(this);
    m_yan->addWidget(m_panel);
    m_yan->addStretch();
    m_form = new QFormLayout(m_panel);
    m_form->setContentsMargins(0, 0, 0, 0);
    DurumSatiriEkle(ana);

    connect(T, &ListeIzgarasi::EnterBasildi, this, [this] { Getir(); });
    // A double click on the empty part of the rows' area counts as well.
    T->viewport()->installEventFilter(this);
    resize(1100, 600);
}

void DusumListeEkrani::SuzgecKutusu(QLineEdit*& kutu, const char* ad, const QString& etiket)
{
    kutu = Adli(new QLineEdit(m_panel), ad);
    m_form->addRow(etiket, kutu);
    kutu->installEventFilter(this);
    connect(kutu, &QLineEdit::textChanged, this, &DusumListeEkrani::DegisinceGuncelle);
}

void DusumListeEkrani::PaneliTamamla(const QStringList& secenekler)
{
    const auto tarihKutusu = [&](TarihSecici*& kutu, const char* ad, const QString& etiket) {
        kutu = Adli(new TarihSecici(m_panel), ad);
        kutu->setToolTip(etiket);
        m_form->addRow(etiket, kutu);
        connect(kutu, &QDateEdit::dateChanged, this, &DusumListeEkrani::DegisinceGuncelle);
    };
    tarihKutusu(Tarih, "Tarih", QStringLiteral("Başlama Tarihi"));
    tarihKutusu(Tarih1, "Tarih1", QStringLiteral("Bitiş Tarihi"));
    Tarih1->GunYaz(DusumListesi::BitisTarihi(Baglam().CalisYil));

    auto* grup = new QButtonGroup(this);
    for (int i = 0; i < secenekler.size(); ++i) {
        auto* op = new QRadioButton(secenekler[i], m_panel);
        op->setObjectName(QStringLiteral("Op%1").arg(i + 1));
        op->setChecked(i == 0);
        op->installEventFilter(this);
        grup->addButton(op, i + 1);
        m_form->addRow(op);
    }
    connect(grup, &QButtonGroup::idToggled, this, [this](int secenek, bool secili) {
        if (!secili)
            return;
        m_secenek = secenek;
        DegisinceGuncelle();
    });

    Command12 = Adli(new QPushButton(QStringLiteral("Yazdır"), m_panel), "Command12");
    Command13 = Adli(new QPushButton(QStringLiteral("Çıkış"), m_panel), "Command13");
    m_form->addRow(Command12);
    m_form->addRow(Command13);
    connect(Command12, &QPushButton::clicked, this, &DusumListeEkrani::ListeyiYazdir);
    connect(Command13, &QPushButton::clicked, this, &QWidget::close);
}

DusumListesi::Suzgec DusumListeEkrani::Suzgec() const
{
    const auto metin = [](const QLineEdit* kutu) { return kutu ? kutu->text() : QString(); };
    DusumListesi::Suzgec s;
    s.FisNo = metin(FisNo);
    s.TeslimAlan = metin(TeslimAlan);
    s.KomisyonBaskaniAdi = metin(KomisyonBaskaniAdi);
    s.MalzAdi = metin(MalzAdi);
    s.Ozellik = metin(Ozellik);
    s.Unite = metin(Unite);
    s.HesapKod = metin(HesapKod);
    if (!Tarih->Bos())
        s.Tarih = Tarih->date();
    if (!Tarih1->Bos())
        s.Tarih1 = Tarih1->date();
    s.Secenek = m_secenek;
    return s;
}

void DusumListeEkrani::DegisinceGuncelle()
{
    // Controls set before the screen is shown wait for its activation.
    if (isVisible())
        Guncelle();
}

void DusumListeEkrani::ListeyiYazdir()
{
    Izgara liste;
    bool okundu = false;
    Komut([&] {
        liste = T->Anlik();
        okundu = true;
    });
    if (okundu)
        Yazdir([&](Yazici& p) { Yaz(p, liste); });
}

bool DusumListeEkrani::event(QEvent* olay)
{
    if (olay->type() == QEvent::WindowActivate)
        Guncelle();
    return KartEkrani::event(olay);
}

bool DusumListeEkrani::eventFilter(QObject* nesne, QEvent* olay)
{
    if (nesne == T->viewport()) {
        if (olay->type() == QEvent::MouseButtonDblClick) {
            CiftTikla();
            return true;
        }
    } else if (OkTusuListeye(T, olay)) {
        return true;
    }
    return KartEkrani::eventFilter(nesne, olay);
}
