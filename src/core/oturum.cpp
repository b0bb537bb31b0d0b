#include "oturum.h"

#include "saat.h"
#include "veri_klasoru.h"
#include "veritabani.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>

QStringList Oturum::ParolaYazimlari(const QString& klasor)
{
    const QSettings ayarlar(VeriKlasoru::DosyaYolu(klasor, QStringLiteral("ayarlar.ini")), QSettings::IniFormat);
    const QString parola = ayarlar.value(QStringLiteral("Giris/Parola"), QStringLiteral("Z7")).toString();
    const QLocale turkce(QLocale::Turkish, QLocale::Turkey);
    return {turkce.toUpper(parola), turkce.toLower(parola)};
}

bool Oturum::AylikKopya(const QString& klasor)
{
    const QString kaynak = VeriKlasoru::DosyaYolu(klasor, DosyaAdi(Dosya::Ayniyat));
    if (!QFileInfo::exists(kaynak))
        return false;
    const QString ad = QStringLiteral("AYNIYAT%1.MDB").arg(Saat::Bugun().month(), 2, 10, QLatin1Char('0'));
    const QString hedef = VeriKlasoru::DosyaYolu(klasor, ad);
    // Written beside the old copy first, so that a failure leaves it whole.
    const QString gecici = hedef + QStringLiteral(".yeni");
    QFile::remove(gecici);
    try {
        Veritabani vt(kaynak);
        vt.Calistir(QStringLiteral("VACUUM INTO ?"), {gecici});
    } catch (const VeriHatasi&) {
        QFile::remove(gecici);
        return false;
    }
    if (QFileInfo::exists(hedef) && !QFile::remove(hedef)) {
        QFile::remove(gecici);
        return false;
    }
    return QFile::rename(gecici, hedef);
}

CalismaBaglami Oturum::MenuBaglami(const QString& klasor)
{
    CalismaBaglami baglam;
    baglam.Klasor = klasor;
    try {
        Veritabani vt(klasor, Dosya::Genel);
        QSqlQuery q = vt.Sorgu(QStringLiteral("Select KurumAdi, CalisAy, CalisYil from Sabit Where Anahtar = 1 "));
        if (q.next()) {
            baglam.Baslik = q.value(0).toString();
            baglam.CalisAy = q.value(1).toString();
            baglam.CalisYil = q.value(2).toString();
        }
    } catch (const VeriHatasi&) {
        // A missing or unreadable row gives the empty menu, without a word.
    }
    return baglam;
}
