#include "sayim_cetveli_ekrani.h"

#include "rapor_belgesi.h"
#include "sayim_cetveli.h"
#include "yazilir_kutu.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>

SayimCetveli::SayimCetveli(const CalismaBaglami& baglam, QWidget* parent)
    : YilDevriEkrani(baglam, QStringLiteral("İlkmadde-Malzeme"), parent)
{
    auto* tek = new QGroupBox(QStringLiteral("Tek Malzeme Listeleme"), this);
    new QVBoxLayout(tek);
    HesapNo4 = YazilirKutu(tek, QStringLiteral("HesapNo4"));
    tek->layout()->addWidget(HesapNo4);
    PaneleEkle(tek);
    Dene([&] {
        m_altHesaplar = SayimDokum::AltHesaplar(Genel());
        ListeDoldur(HesapNo4, RaporListeleri::KodluAdlar(m_altHesaplar));
        HesapNo4->setEditText(QString());
    });
    connect(HesapNo4, &QComboBox::activated, this, &SayimCetveli::Toplu);
    setWindowTitle(QStringLiteral("Taşınır Sayım ve Döküm Cetveli"));
}

RaporTablosu SayimCetveli::Hesapla(const RaporSuzgeci& s, const QString& anaHesap)
{
    QString altHesap;
    for (const RaporListeleri::KodAd& k : m_altHesaplar)
        if (k.kod == RaporListeleri::Kodu(HesapNo4->currentText()))
            altHesap = k.kod;
    return SayimDokum::Hesapla(Ayniyat(), Genel(), s, anaHesap, altHesap);
}

RaporKagidi SayimCetveli::Kagit() const
{
    return SayimDokum::Kagit(SabitKayit::Getir(Genel()).value_or(SabitSatiri()));
}

QStringList SayimCetveli::Etiketler() const
{
    return RaporBelgeleri::Etiketler();
}
