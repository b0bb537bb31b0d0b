#include "kullanici_dosyasi.h"

#include <filesystem>

KullaniciDosyasi::KullaniciDosyasi(const QString& hedef)
    : m_hedef(hedef), m_gecici(hedef + QStringLiteral(".XXXXXX"))
{
    if (!m_gecici.open())
        throw Yazilamadi(m_gecici.errorString());
}

Hata KullaniciDosyasi::Yazilamadi(const QString& neden) const
{
    return Hata(QStringLiteral("\"%1\" yazılamadı (%2). Diskte yer ve klasörde yazma izni olduğunu denetleyiniz.")
                    .arg(m_hedef, neden));
}

void KullaniciDosyasi::Yerlestir(bool tamam)
{
    if (!tamam)
        throw Yazilamadi(QStringLiteral("belge eksik kaldı"));
    std::error_code hata;
    std::filesystem::rename(m_gecici.fileName().toStdU16String(), m_hedef.toStdU16String(), hata);
    if (hata)
        throw Yazilamadi(QString::fromLocal8Bit(hata.message()));
    m_gecici.setAutoRemove(false);
}
