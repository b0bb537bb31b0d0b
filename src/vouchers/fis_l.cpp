#include "fis_l.h"

#include "tarih_secici.h"
#include "liste_izgarasi.h"
#include "saat.h"
#include "veritabani.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

FIS_L::FIS_L(const CalismaBaglami& baglam, const QString& fcins, QWidget* parent)
    : KartEkrani(baglam, parent), FCins1(fcins)
{
    setWindowTitle(QStringLiteral("Fiş Listesi"));
    auto* ana = new QVBoxLayout(this);
    Label5 = Adli(new QLabel(QStringLiteral("Çift Tıklayarak Fiş Seçebilirsiniz."), this), "Label5");
    ana->addWidget(Label5);

    auto* orta = new QHBoxLayout;
    ana->addLayout(orta, 1);
    T = Adli(new ListeIzgarasi(this), "T");
    T->Basliklar(FisListesi::Basliklar());
    T->Genislikler(FisListesi::Genislikler());
    // The dates whole, year included.
    for (int sutun : {1, 4})
        T->EnAzGenislik(sutun, QStringLiteral("31.12.2026"));
    orta->addWidget(T, 1);

    auto* yan = new QVBoxLayout;
    orta->addLayout(yan);
    Boyut = Adli(new QLabel(QStringLiteral(" Gizle >>"), this), "Boyut");
    Boyut->setCursor(Qt::PointingHandCursor);
    Boyut->installEventFilter(this);
    yan->addWidget(Boyut, 0, Qt::AlignRight);
    m_panel = new QWidget(this);
    yan->addWidget(m_panel);
    yan->addStretch();

    auto* form = new QFormLayout(m_panel);
    form->setContentsMargins(0, 0, 0, 0);
    const auto suzgecKutusu = [&](QLineEdit*& kutu, const char* ad, const QString& etiket) {
        kutu = Adli(new QLineEdit(m_panel), ad);
        kutu->setToolTip(QStringLiteral("Liste Belirtilen Rakam veya Harfden başlar."));
        form->addRow(etiket, kutu);
    };
    suzgecKutusu(FisNo, "FisNo", QStringLiteral("Fiş No"));
    suzgecKutusu(Ozellik, "Ozellik", QStringLiteral("Özellik-Marka"));
    suzgecKutusu(TeslimAlan, "TeslimAlan", QStringLiteral("Teslim Alan"));
    suzgecKutusu(Unite, "Unite", QStringLiteral("Ünite"));
    suzgecKutusu(NeredenGeldigi, "NeredenGeldigi", QStringLiteral("Nereden Geldiği"));
    suzgecKutusu(BelgeSayi, "BelgeSayi", QStringLiteral("Belge Sayı"));
    const auto tarihKutusu = [&](TarihSecici*& kutu, const char* ad, const QString& etiket) {
        kutu = Adli(new TarihSecici(m_panel), ad);
        kutu->setToolTip(etiket);
        form->addRow(etiket, kutu);
    };
    tarihKutusu(Tarih, "Tarih", QStringLiteral("Başlama Tarihi"));
    tarihKutusu(Tarih1, "Tarih1", QStringLiteral("Bitiş Tarihi"));
    Tarih1->GunYaz(QDate(Saat::Bugun().year(), 12, 31));

    QRadioButton* FIS_L::* const secenekler[] = {&FIS_L::Op1, &FIS_L::Op2, &FIS_L::Op3, &FIS_L::Op4,
                                                  &FIS_L::Op5, &FIS_L::Op6, &FIS_L::Op7};
    const QStringList secenekAdlari{QStringLiteral("Fiş No"),      QStringLiteral("Tarih"),
                                    QStringLiteral("Özellik"),     QStringLiteral("Teslim Alan"),
                                    QStringLiteral("Ünite"),       QStringLiteral("Tutar"),
                                    QStringLiteral("Nereden Geldiği")};
    for (int i = 0; i < 7; ++i) {
        QRadioButton* op = new QRadioButton(secenekAdlari[i], m_panel);
        this->*secenekler[i] = op;
        op->setObjectName(QStringLiteral("Op%1").arg(i + 1));
        op->setChecked(i == 0);
        op->installEventFilter(this);
        form->addRow(op);
        connect(op, &QRadioButton::toggled, this, [this, i](bool secili) {
            if (!secili)
                return;
            m_siraSutunu = FisListesi::SiraSutunu(i + 1, m_siraSutunu);
            Guncelle();
        });
    }
    Check1 = Adli(new QCheckBox(QStringLiteral("Artan Sıra"), m_panel), "Check1");
    form->addRow(Check1);
    Command12 = Adli(new QPushButton(QStringLiteral("Yazdır"), m_panel), "Command12");
    form->addRow(Command12);
    DurumSatiriEkle(ana);

    for (QLineEdit* kutu : {FisNo, Ozellik, TeslimAlan, Unite, NeredenGeldigi, BelgeSayi}) {
        connect(kutu, &QLineEdit::textChanged, this, &FIS_L::Guncelle);
        kutu->installEventFilter(this);
    }
    Check1->installEventFilter(this);
    for (TarihSecici* kutu : {Tarih, Tarih1})
        connect(kutu, &QDateEdit::dateChanged, this, &FIS_L::Guncelle);
    connect(Check1, &QCheckBox::toggled, this, &FIS_L::Guncelle);
    connect(Command12, &QPushButton::clicked, this, &FIS_L::ListeyiYazdir);
    connect(T, &ListeIzgarasi::EnterBasildi, this, &FIS_L::Sec);
    // A double click anywhere on the rows' area chooses, the empty part of an
    // empty list too.
    T->viewport()->installEventFilter(this);

    resize(1100, 600);
    Guncelle();
    FisNo->setFocus();
}

FisListesi::Suzgec FIS_L::Suzgec() const
{
    FisListesi::Suzgec s;
    s.FisNo = FisNo->text();
    s.TeslimAlan = TeslimAlan->text();
    s.Ozellik = Ozellik->text();
    s.BelgeSayi = BelgeSayi->text();
    s.NeredenGeldigi = NeredenGeldigi->text();
    if (!Tarih->Bos())
        s.Tarih = Tarih->date();
    if (!Tarih1->Bos())
        s.Tarih1 = Tarih1->date();
    s.FCins1 = FCins1;
    s.SiraSutunu = m_siraSutunu;
    s.Artan = Check1->isChecked();
    return s;
}

void FIS_L::Guncelle()
{
    Komut([this] {
        const FisListesi::Komut k = FisListesi::Sorgu(Suzgec());
        T->Doldur(Ayniyat(), k.sql, k.degerler);
    });
}

void FIS_L::Sec()
{
    const int satir = T->Row();
    emit FisSecildi(satir > 0 ? T->TextMatrix(satir, 0) : QString(),
                    satir > 0 ? T->TextMatrix(satir, 1) : QString());
    close();
}

void FIS_L::BoyutDegistir()
{
    const bool gizle = m_panel->isVisible();
    m_panel->setVisible(!gizle);
    Boyut->setText(gizle ? QStringLiteral(" <<") : QStringLiteral(" Gizle >>"));
}

void FIS_L::ListeyiYazdir()
{
    Yazdir([this](Yazici& p) { FisListesi::ListeYazdir(p, T->Anlik()); });
}

bool FIS_L::eventFilter(QObject* nesne, QEvent* olay)
{
    if (nesne == T->viewport()) {
        if (olay->type() == QEvent::MouseButtonDblClick) {
            Sec();
            return true;
        }
    } else if (nesne == Boyut) {
        if (olay->type() == QEvent::MouseButtonRelease) {
            BoyutDegistir();
            return true;
        }
    } else if (OkTusuListeye(T, olay)) {
        return true;
    }
    return KartEkrani::eventFilter(nesne, olay);
}
