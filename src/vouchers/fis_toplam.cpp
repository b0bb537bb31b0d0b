#include "fis_toplam.h"

#include "bicim.h"
#include "fis_satir.h"
#include "kayit.h"
#include "veri.h"

#include <charconv>
#include <cmath>
#include <string>

namespace {

// A total kept in a text box is read back from its text before the next
// line is added to it.
double geriOku(double toplam)
{
    return Val(VirgulNokta(SayiMetni(toplam)));
}

}

FisToplam::AraToplamlar FisToplam::AraToplam(const FisEkrani& fis)
{
    const int miktarSutunu = fis.Hangi == u"G" ? FisSutun::Miktar : FisSutun::Cikan;
    double miktar = 0;
    double tutar = 0;
    for (int i = 1; i <= fis.Satirlar.size(); ++i) {
        const double satirMiktari = Val(VirgulNokta(fis.Hucre(i, miktarSutunu)));
        miktar = geriOku(miktar) + satirMiktari;
        tutar = geriOku(tutar) + Val(VirgulNokta(fis.Hucre(i, FisSutun::BirimFiyat))) * satirMiktari;
    }
    // Nothing ever adds to the third figure.
    QString ucuncu = SayiMetni(0.0);
    return {SagaDayaCift(ucuncu, 13), SayiMetni(miktar), SayiMetni(tutar)};
}

double FisToplam::KdvToplam(FisEkrani& fis)
{
    return KdvTopla(
        [&fis](int i, int sutun) {
            // A counted line without a rate gets the usual one, in the grid too.
            if (sutun == FisSutun::KDV && fis.Hucre(i, sutun).isEmpty())
                fis.HucreYaz(i, sutun, QStringLiteral("18"));
            return fis.Hucre(i, sutun);
        },
        FisSutun::Miktar, FisSutun::BirimFiyat, FisSutun::KDV);
}

double FisToplam::KdvTopla(const std::function<QString(int, int)>& hucre, int miktarSutunu, int fiyatSutunu,
                           int oranSutunu)
{
    double kdv = 0;
    for (int i = 1; i <= FisSatir::SatirSayisi; ++i) {
        const double miktar = Val(hucre(i, miktarSutunu));
        if (miktar == 0)
            continue;
        kdv = geriOku(kdv) + Val(hucre(i, fiyatSutunu)) * miktar / 100 * Val(hucre(i, oranSutunu));
    }
    return kdv;
}

double FisToplam::Yuvarla(double deger, int basamak)
{
    if (!std::isfinite(deger) || deger == 0)
        return deger;
    // The value is 0.d1d2...d15 x 10^(us + 1).
    char tampon[32];
    const char* son = std::to_chars(tampon, tampon + sizeof tampon, std::fabs(deger),
                                    std::chars_format::scientific, 14)
                          .ptr;
    std::string rakamlar;
    const char* p = tampon;
    for (; *p != 'e'; ++p)
        if (*p != '.')
            rakamlar += *p;
    int us = 0;
    std::from_chars(p + 1 + (p[1] == '+'), son, us);
    const int kalan = us + 1 + basamak;
    if (kalan >= int(rakamlar.size()))
        return deger;
    if (kalan < 0)
        return 0.0;
    const std::string atilan = rakamlar.substr(kalan);
    const bool yarim = atilan[0] == '5' && atilan.find_first_not_of('0', 1) == std::string::npos;
    long long tam = kalan == 0 ? 0 : std::stoll(rakamlar.substr(0, kalan));
    if (atilan[0] > '5' || (atilan[0] == '5' && !yarim) || (yarim && tam % 2 == 1))
        ++tam;
    const std::string metin = std::to_string(tam) + "e-" + std::to_string(basamak);
    double sonuc = 0;
    std::from_chars(metin.data(), metin.data() + metin.size(), sonuc);
    return deger < 0 ? -sonuc : sonuc;
}

std::optional<double> FisToplam::KdvEkle(const QString& fiyat, const QString& oran)
{
    const std::optional<double> yuzde = SayiDegeri(oran);
    if (!yuzde)
        return std::nullopt;
    return Yuvarla(Val(fiyat) + *yuzde * Val(VirgulNokta(fiyat)) / 100, 2);
}

QString FisToplam::HarfYazma(const QString& tutar, QString& hata)
{
    try {
        return TutarYaziyla(Val(VirgulNokta(tutar)));
    } catch (const BicimHatasi& h) {
        hata = h.Mesaj();
        return QString();
    }
}

QString FisToplam::YazimUniteAdi(const QString& uniteAdi)
{
    return uniteAdi.isEmpty() ? QStringLiteral("false") : uniteAdi;
}

FisYazimi FisToplam::KayittanYazim(Veri& veri, const QString& fisNo, const QString& fcins,
                                   const QString& yil, QString* harfHatasi)
{
    FisYazimi yazim;
    FisEkrani& fis = yazim.fis;
    fis.FisNo = fisNo;
    fis.FCins = fcins;
    fis.Hangi = fcins;
    fis.CalisYil = yil;
    if (!FisKayit::Getir(veri.Ayniyat(), fis))
        throw Hata(QStringLiteral("%1 nolu fiş bulunamadı.").arg(fisNo));
    const FisSatirlari satirlar = FisKayit::SatirlariGetir(veri.Ayniyat(), veri.Genel(), fis.FisNo, fcins, yil);
    fis.Satirlar = satirlar.hucreler;
    yazim.IslemAd = satirlar.islemAdlari.value(0);
    yazim.UniteAd2 = YazimUniteAdi(satirlar.uniteAdlari.value(0));
    const AraToplamlar ara = AraToplam(fis);
    yazim.Text2 = ara.Text2;
    yazim.Text3 = ara.Text3;
    yazim.KDVTOP = SayiMetni(KdvToplam(fis));
    QString hata;
    yazim.HarfYazma = HarfYazma(yazim.Text3, hata);
    if (harfHatasi)
        *harfHatasi = hata;
    return yazim;
}
