#include "dusulen_l.h"

#include "liste_izgarasi.h"

#include <QLabel>
#include <QLineEdit>

Dusulen_L::Dusulen_L(const CalismaBaglami& baglam, QWidget* parent)
    : DusumListeEkrani(baglam, QStringLiteral("Düşüm Tutanak Listesi"), parent)
{
    T->Basliklar(DusumListesi::DusulenBasliklari());
    T->Genislikler(DusumListesi::DusulenGenislikleri());
    T->EnAzGenislik(4, QStringLiteral("31.12.2026"));

    SuzgecKutusu(FisNo, "FisNo", QStringLiteral("Tutanak No"));
    SuzgecKutusu(KomisyonBaskaniAdi, "KomisyonBaskaniAdi", QStringLiteral("Komisyon Başkanı"));
    SuzgecKutusu(MalzAdi, "MalzAdi", QStringLiteral("Malzeme Adı"));
    SuzgecKutusu(Ozellik, "Ozellik", QStringLiteral("Özellik"));
    SuzgecKutusu(Unite, "Unite", QStringLiteral("Ünite"));
    PaneliTamamla({QStringLiteral("Tutanak No"), QStringLiteral("Tarih"), QStringLiteral("Malzeme Adı"),
                   QStringLiteral("Özellik"), QStringLiteral("Ünite"), QStringLiteral("BirimFiyat")});
    FisNo->setFocus();
}

void Dusulen_L::Guncelle()
{
    Komut([this] {
        const QList<QStringList> satirlar = DusumListesi::DusulenSatirlari(Ayniyat(), Suzgec());
        T->Satirlar(satirlar);
        DurumSatiri()->setVisible(satirlar.isEmpty());
        if (satirlar.isEmpty())
            Durum(QStringLiteral("    Kayıt Bulunamadı ..     "));
    });
}

void Dusulen_L::Getir()
{
    const int satir = T->Row();
    if (satir >= 1)
        emit DusumSecildi(T->TextMatrix(satir, DusumListesi::DusulenFisNoSutunu));
}

void Dusulen_L::CiftTikla()
{
    Getir();
    close();
}

void Dusulen_L::Yaz(Yazici& p, const Izgara& liste)
{
    FisListesi::ListeYazdir(p, liste);
}
