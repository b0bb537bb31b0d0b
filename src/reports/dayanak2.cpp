#include "dayanak2.h"

#include "dayanik_liste_kagidi.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

using namespace DayanikListesi;

Dayanak2::Dayanak2(const CalismaBaglami& baglam, QWidget* parent) : RaporEkrani(baglam, QStringLiteral("8.5"), parent)
{
    setWindowTitle(QStringLiteral("Dayanaklı Liste  Raporlama"));
    auto* ust = new QWidget(this);
    auto* baslik = new QHBoxLayout(ust);
    baslik->setContentsMargins(0, 0, 0, 0);
    Baslik = Adli(new QLabel(QStringLiteral("Dayanıklık Taşınır Liste"), ust), "Baslik");
    UniteNo = Adli(new QLabel(ust), "UniteNo");
    UniteAd = Adli(new QLabel(ust), "UniteAd");
    for (QLabel* e : {Baslik, UniteNo, UniteAd}) {
        QFont yazi = e->font();
        yazi.setPointSize(14);
        e->setFont(yazi);
        baslik->addWidget(e);
    }
    baslik->addStretch();
    UsteEkle(ust);

    auto* g = new QGroupBox(QStringLiteral("Ünite Seçim"), this);
    auto* y = new QVBoxLayout(g);
    UniteAd1 = Adli(new QComboBox(g), "UniteAd1");
    y->addWidget(UniteAd1);
    PaneleEkle(g);
    Command3->setText(QStringLiteral("F5_ Yeniden Liste"));
    connect(UniteAd1, &QComboBox::activated, this, &Dayanak2::Toplu);

    // The units as the table holds them, an empty or repeated name once.
    Dene([&] {
        QStringList adlar;
        for (const Birim& b : Birimler(Genel()))
            if (!b.UniteAd.trimmed().isEmpty() && !adlar.contains(b.UniteAd))
                adlar << b.UniteAd;
        UniteAd1->addItems(adlar);
        UniteAd1->setCurrentIndex(-1);
    });
}

void Dayanak2::Toplu()
{
    const QString ad = UniteAd1->currentText();
    if (ad.trimmed().isEmpty() || Yuruyor())
        return;
    Dene([&] {
        const QList<Birim> birimler = Birimler(Genel(), ad);
        if (birimler.isEmpty())
            return;
        const Liste2 liste(Ayniyat(), birimler.mid(0, 1));
        UniteNo->setText(birimler[0].UniteKod);
        UniteAd->setText(birimler[0].UniteAd);
        const Sonuc sonuc = liste.Hesapla(0);
        Goster(sonuc.tablo);
        if (!sonuc.kayitVar)
            Bildir(QStringLiteral(" Kayıt Bulunamadı .. "));
    });
}

RaporKagidi Dayanak2::Kagit() const
{
    return Kagit2();
}

QStringList Dayanak2::Etiketler() const
{
    return DayanikListesi::Etiketler();
}

void Dayanak2::Command3Calistir()
{
    Toplu();
}
