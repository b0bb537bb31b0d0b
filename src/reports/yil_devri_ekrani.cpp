#include "yil_devri_ekrani.h"

#include "hesap_cetveli.h"
#include "kesin_hesap.h"
#include "tarih_secici.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>

YilDevriEkrani::YilDevriEkrani(const CalismaBaglami& baglam, const QString& ilkAd, QWidget* parent)
    : RaporEkrani(baglam, QStringLiteral("8.5"), parent)
{
    TarihleriKur();
    // The main accounts: code above, name below; a click lists that one.
    QGroupBox* hesaplar = Cerceve(QStringLiteral("Ana Hesap"));
    T2 = Adli(new QTableWidget(2, 4, hesaplar), "T2");
    T2->horizontalHeader()->hide();
    T2->verticalHeader()->hide();
    T2->setEditTriggers(QAbstractItemView::NoEditTriggers);
    const QStringList kodlar = {QStringLiteral("150"), QStringLiteral("253"), QStringLiteral("254"),
                                QStringLiteral("255")};
    const QStringList adlar = {ilkAd, QStringLiteral("Tesis-Cihazlar"), QStringLiteral("Taşıtlar"),
                               QStringLiteral("Demirbaşlar")};
    for (int i = 0; i < 4; ++i) {
        T2->setItem(0, i, new QTableWidgetItem(kodlar[i]));
        T2->setItem(1, i, new QTableWidgetItem(adlar[i]));
    }
    T2->resizeColumnsToContents();
    T2->setFixedHeight(T2->rowHeight(0) * 2 + 2 * T2->frameWidth());
    hesaplar->layout()->addWidget(T2);
    const auto hesapSec = [this](int, int sutun) {
        m_anaHesap = T2->item(0, sutun)->text();
        Toplu();
    };
    connect(T2, &QTableWidget::cellClicked, this, hesapSec);
    connect(T2, &QTableWidget::cellActivated, this, hesapSec);

    QGroupBox* ambar = Cerceve(QStringLiteral("Ambar No"));
    AmbarNo = Adli(new QLineEdit(ambar), "AmbarNo");
    Check2 = Adli(new QCheckBox(QStringLiteral("Tüm Ambarlar"), ambar), "Check2");
    ambar->layout()->addWidget(AmbarNo);
    ambar->layout()->addWidget(Check2);
    connect(AmbarNo, &QLineEdit::returnPressed, this, &YilDevriEkrani::Toplu);
    connect(Check2, &QCheckBox::toggled, this, [this](bool secili) {
        if (secili) {
            AmbarNo->clear();
            Toplu();
        }
    });
    QGroupBox* sayma = Cerceve(QStringLiteral("Sıra"));
    Sayma = Adli(new QLineEdit(sayma), "Sayma");
    Sayma->setReadOnly(true);
    sayma->layout()->addWidget(Sayma);

    Command3->setText(QStringLiteral("F5_ Yeniden Hesapla"));
    Command16 = Dugme("Command16", QStringLiteral("Yeniden Liste"));
    connect(Command16, &QPushButton::clicked, this, &YilDevriEkrani::YenidenListe);

    // Opened without Hangi: the start from the beginning of the records, so
    // that earlier years carry over; the end at today in the working year.
    Tarih->GunYaz(QDate(1900, 1, 1));
    Tarih1->GunYaz(RaporSuzgecleri::Acilis(Baglam().CalisYil, QStringLiteral("T")).Tarih1);
    resize(Piksel(15360), 720);
}

RaporSuzgeci YilDevriEkrani::Suzgec() const
{
    RaporSuzgeci s = Donem();
    s.AmbarNo = AmbarNo->text();
    s.TumAmbarlar = Check2->isChecked();
    return s;
}

void YilDevriEkrani::Toplu()
{
    TarihleriAl();
    Durum(QStringLiteral(" Lütfen Bekleyiniz  ...  "));
    DurumSatiri()->repaint();
    RaporTablosu t;
    const bool hesaplandi = Dene([&] { t = Hesapla(Suzgec(), m_anaHesap); });
    Durum(QString());
    if (!hesaplandi)
        return;
    if (t.satirlar.isEmpty()) {
        ListeyiTemizle();
        Sayma->clear();
        Bildir(QStringLiteral("  Malzeme Kaydı Bulunamadı .. "));
        return;
    }
    Goster(t);
    Sayma->setText(QString::number(std::count_if(t.satirlar.cbegin(), t.satirlar.cend(), [](const RaporSatiri& r) {
        return r.tur == SatirTuru::Kayit;
    })));
}

void YilDevriEkrani::Command3Calistir()
{
    Toplu();
}

void YilDevriEkrani::YenidenListe()
{
    m_anaHesap.clear();
    AmbarNo->clear();
    Toplu();
}


HesapCetveli::HesapCetveli(const CalismaBaglami& baglam, QWidget* parent)
    : YilDevriEkrani(baglam, QStringLiteral("İlkmadde-Malzeme"), parent)
{
    setWindowTitle(QStringLiteral("Hesap Cetveli TM-15"));
}

RaporTablosu HesapCetveli::Hesapla(const RaporSuzgeci& s, const QString& anaHesap)
{
    return HesapCetveliRaporu::Toplu(Ayniyat(), Genel(), s, anaHesap);
}

RaporKagidi HesapCetveli::Kagit() const
{
    return HesapCetveliRaporu::Kagit(SabitKayit::Getir(Genel()).value_or(SabitSatiri()));
}

QList<KagitSatiri> HesapCetveli::UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo) const
{
    return HesapCetveliRaporu::UstBilgi(sabit, tablo);
}

KesinHesap::KesinHesap(const CalismaBaglami& baglam, QWidget* parent)
    : YilDevriEkrani(baglam, QStringLiteral("İlkMadde-Malzeme"), parent)
{
    setWindowTitle(QStringLiteral("Kesin Hesap İcmal Cetveli TMY-17"));
}

RaporTablosu KesinHesap::Hesapla(const RaporSuzgeci& s, const QString& anaHesap)
{
    return KesinHesapRaporu::Toplu(Ayniyat(), Genel(), s, anaHesap, Baglam().CalisYil);
}

RaporKagidi KesinHesap::Kagit() const
{
    return KesinHesapRaporu::Kagit();
}

QList<KagitSatiri> KesinHesap::UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo) const
{
    return KesinHesapRaporu::UstBilgi(sabit, tablo);
}
