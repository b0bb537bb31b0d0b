#include "dusum_l1.h"

#include "liste_izgarasi.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>

Dusum_L1::Dusum_L1(const CalismaBaglami& baglam, QWidget* parent)
    : DusumListeEkrani(baglam, QStringLiteral("Dayanıklı-Demirbaş Malzeme Liste"), parent)
{
    T->Basliklar(DusumListesi::MalzemeBasliklari());
    T->Genislikler(DusumListesi::MalzemeGenislikleri());
    for (int sutun : {2, 4})
        T->EnAzGenislik(sutun, QStringLiteral("31.12.2026"));

    Boyut = Adli(new QLabel(QStringLiteral(" Gizle  >>"), this), "Boyut");
    Boyut->setCursor(Qt::PointingHandCursor);
    Boyut->installEventFilter(this);
    m_yan->insertWidget(0, Boyut, 0, Qt::AlignRight);

    SuzgecKutusu(FisNo, "FisNo", QStringLiteral("Fiş No"));
    SuzgecKutusu(TeslimAlan, "TeslimAlan", QStringLiteral("Kime Verildiği"));
    SuzgecKutusu(MalzAdi, "MalzAdi", QStringLiteral("Malzeme Adı"));
    SuzgecKutusu(Ozellik, "Ozellik", QStringLiteral("Özellik-Marka"));
    SuzgecKutusu(Unite, "Unite", QStringLiteral("Ünite"));
    SuzgecKutusu(HesapKod, "HesapKod", QStringLiteral("HesapKod"));
    PaneliTamamla({QStringLiteral("FişNo"), QStringLiteral("Fiş Tarihi"), QStringLiteral("FaturaTarihi"),
                   QStringLiteral("Özellik-Marka"), QStringLiteral("Ünite"), QStringLiteral("B.Fiyat"),
                   QStringLiteral("HesapKod"), QStringLiteral("Kime Verildiği")});
    FisNo->setFocus();
}

void Dusum_L1::Guncelle()
{
    Komut([this] {
        const FisListesi::Komut k = DusumListesi::MalzemeSorgusu(Suzgec());
        T->Doldur(Ayniyat(), k.sql, k.degerler);
    });
}

void Dusum_L1::Getir()
{
    const int satir = T->Row();
    if (satir < 1)
        return;
    QStringList hucreler;
    for (int sutun = 0; sutun < DusumListesi::MalzemeBasliklari().size(); ++sutun)
        hucreler << T->TextMatrix(satir, sutun);
    QMap<int, QString> secilen;
    bool alindi = false;
    Komut([&] {
        secilen = DusumListesi::SecilenSatir(Genel(), hucreler);
        alindi = true;
    });
    if (!alindi)
        return;
    emit SatirSecildi(secilen);
    close();
}

void Dusum_L1::CiftTikla()
{
    Getir();
}

void Dusum_L1::Yaz(Yazici& p, const Izgara& liste)
{
    DusumListesi::MalzemeYazdir(p, liste);
}

void Dusum_L1::Boyutlandir()
{
    const bool gizle = m_panel->isVisible();
    m_panel->setVisible(!gizle);
    Boyut->setText(gizle ? QStringLiteral(" <<") : QStringLiteral(" Gizle >>"));
}

bool Dusum_L1::eventFilter(QObject* nesne, QEvent* olay)
{
    if (nesne == Boyut && olay->type() == QEvent::MouseButtonRelease) {
        Boyutlandir();
        return true;
    }
    return DusumListeEkrani::eventFilter(nesne, olay);
}
