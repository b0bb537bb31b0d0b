// The command-line commands: each works without a window and answers the
// program's exit code, its messages on the standard output and error.

#include "komutlar.h"

#include "cikti.h"
#include "dusum_sayfasi.h"
#include "fis_sayfasi.h"
#include "fis_toplam.h"
#include "istek_sayfasi.h"
#include "kod_plani_yukle.h"
#include "ornek_veri.h"
#include "rapor_tanimlari.h"
#include "saat.h"
#include "sabit_kayit.h"
#include "tek_deger.h"
#include "unite_tanim.h"
#include "veri.h"
#include "yil_sonu.h"
#include "yazici.h"
#include "zimmet_sayfasi.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <memory>

namespace {

void hataYaz(const QString& mesaj)
{
    std::fprintf(stderr, "%s\n", qPrintable(mesaj));
}

// The unit list as the unit screen's print button gives it.
void uniteListesiYazdir(Veritabani& genel, Yazici& p)
{
    const QString kurum = AlanGetir(genel, QStringLiteral("Sabit"), QStringLiteral("KurumAdi"),
                                    QStringLiteral(" where Anahtar = 1 "));
    UniteTanim::UniteListesiYazdir(genel, kurum, p);
}

// The exit code of a page written whole but without its amount in words.
constexpr int YaziylaYazilamadi = 3;

// One page of a saved voucher: the voucher, its custody slip or its request
// slip, as the voucher screen's print screens draw it. An amount that cannot
// be spelled is warned of and sets `harfYok`; the page prints without it.
Sayfa fisSayfasi(Veri& veri, const QString& no, const QString& cins, const QString& yil,
                 const QString& tur, bool& harfYok)
{
    QString harfHatasi;
    const FisYazimi yazim = FisToplam::KayittanYazim(veri, no, cins, yil, &harfHatasi);
    if (!harfHatasi.isEmpty()) {
        hataYaz(QStringLiteral("Uyarı: %1 nolu fişin tutarı yazıyla yazılamadı: %2").arg(no, harfHatasi));
        harfYok = true;
    }
    const SabitSatiri sabit = SabitKayit::Getir(veri.Genel()).value_or(SabitSatiri());
    if (tur == QLatin1String("zimmet"))
        return ZimmetSayfasi(yazim, sabit);
    if (tur == QLatin1String("istek"))
        return IstekSayfasi(yazim, sabit);
    return FisSayfasi(yazim, sabit);
}

// The minutes of a saved write-off of the year, as its print screen draws
// them.
Sayfa dusumSayfasi(Veri& veri, const QString& no, const QString& yil)
{
    const DusumYazimi yazim = DusumKayit::KayittanYazim(veri, no, yil);
    return DusumSayfasi(yazim, SabitKayit::Getir(veri.Genel()).value_or(SabitSatiri()));
}

void pdfYaz(const Sayfa& sayfa, const QString& dosya)
{
    PdfCikti pdf(dosya);
    Yazici p(&pdf);
    p.PaintPicture(sayfa);
    p.EndDoc();
}

// Opens the folder and says which writes across files an interrupted run
// left and the opening finished or undid.
std::unique_ptr<Veri> ac(const QString& klasor)
{
    auto veri = std::make_unique<Veri>(klasor);
    for (const QString& tamamlanan : veri->Tamamlananlar())
        std::printf("%s\n", qPrintable(tamamlanan));
    return veri;
}

int ornekVeri(const QStringList& argumanlar, const Komutlar::Secenekler& secenek)
{
    if (argumanlar.size() < 2) {
        hataYaz(QStringLiteral("Kullanım: tasinir ornek-veri KLASÖR [--satir N] [--gerekirse]"));
        return 2;
    }
    bool tamam = true;
    const int satir = secenek.satir.isEmpty() ? 3000 : secenek.satir.toInt(&tamam);
    if (!tamam || satir < 1) {
        hataYaz(QStringLiteral("--satir bir pozitif tam sayı olmalı: %1").arg(secenek.satir));
        return 2;
    }
    const QString klasor = QDir(argumanlar.at(1)).absolutePath();
    const std::unique_ptr<Veri> veri = ac(klasor);
    if (secenek.gerekirse && KayitVar(*veri)) {
        std::printf("Klasörde kayıt var; örnek veri yazılmadı: %s\n", qPrintable(klasor));
        return 0;
    }
    OrnekVeriYaz(*veri, satir);
    std::printf("Örnek veri yazıldı: %s\n", qPrintable(klasor));
    return 0;
}

int yazdir(Veri& veri, const QStringList& argumanlar, const Komutlar::Secenekler& secenek)
{
    const QString& no = secenek.no;
    const QString cins = secenek.cins.toUpper();
    const QString& yil = secenek.yil;
    const QString tur = secenek.sayfa.isEmpty() ? QStringLiteral("fis") : secenek.sayfa;
    const QString& dosya = secenek.cikti;
    static const QStringList turler = {QStringLiteral("fis"), QStringLiteral("zimmet"), QStringLiteral("istek")};
    const bool fis = argumanlar.value(1) == QLatin1String("fis")
                     && (cins == QLatin1String("G") || cins == QLatin1String("C")) && turler.contains(tur);
    const bool dusum = argumanlar.value(1) == QLatin1String("dusum");
    if ((!fis && !dusum) || no.isEmpty() || yil.isEmpty() || dosya.isEmpty()) {
        hataYaz(QStringLiteral("Kullanım: tasinir yazdir fis --veri KLASÖR --no N --cins G|C --yil YYYY "
                               "[--sayfa fis|zimmet|istek] --cikti DOSYA.pdf\n"
                               "          tasinir yazdir dusum --veri KLASÖR --no N --yil YYYY --cikti DOSYA.pdf"));
        return 2;
    }
    bool harfYok = false;
    pdfYaz(dusum ? dusumSayfasi(veri, no, yil) : fisSayfasi(veri, no, cins, yil, tur, harfYok),
           QDir(dosya).absolutePath());
    std::printf("Yazıldı: %s\n", qPrintable(QDir(dosya).absolutePath()));
    return harfYok ? YaziylaYazilamadi : 0;
}

QDate tarihOku(const QString& metin)
{
    return QDate::fromString(metin, QStringLiteral("dd.MM.yyyy"));
}

int rapor(Veri& veri, const QStringList& argumanlar, const Komutlar::Secenekler& secenek)
{
    const RaporTanimi* tanim = RaporTanimlari::Bul(argumanlar.value(1));
    const QString hangi = secenek.hangi.toUpper();
    const QString uzanti = QFileInfo(secenek.cikti).suffix().toLower();
    const QDate baslangic = tarihOku(secenek.baslangic);
    const QDate bitis = tarihOku(secenek.bitis);
    if (!tanim || hangi.size() > 1 || !tanim->hangiler.contains(hangi) || (hangi.isEmpty() != tanim->hangiler.isEmpty())
        || !QStringList{QStringLiteral("pdf"), QStringLiteral("csv"), QStringLiteral("xlsx")}.contains(uzanti)
        || (!secenek.baslangic.isEmpty() && !baslangic.isValid()) || (!secenek.bitis.isEmpty() && !bitis.isValid())) {
        QString kullanim;
        for (const RaporTanimi& r : RaporTanimlari::Hepsi())
            kullanim += QStringLiteral("\n  %1%2: %3")
                            .arg(r.ad, r.hangiler.isEmpty() ? QString() : QStringLiteral(" --hangi ") + QStringList(
                                 r.hangiler.split(QString(), Qt::SkipEmptyParts)).join(u'|'), r.aciklama);
        hataYaz(QStringLiteral("Kullanım: tasinir rapor RAPOR --veri KLASÖR [--hangi H] [--baslangic gg.aa.yyyy] "
                               "[--bitis gg.aa.yyyy] [--hesap KOD] --cikti DOSYA.pdf|.csv|.xlsx\nRaporlar:")
                + kullanim);
        return 2;
    }
    RaporSuzgeci s = tanim->acilis(QString::number(Saat::Bugun().year()), hangi);
    if (baslangic.isValid())
        s.Tarih = baslangic;
    if (bitis.isValid())
        s.Tarih1 = bitis;
    s.HesapKod5 = s.HesapKod6 = secenek.hesap;
    const QString dosya = QDir(secenek.cikti).absolutePath();
    const int tablolar = RaporTanimlari::Yaz(*tanim, veri, s, hangi, dosya);
    if (tablolar == 0) {
        hataYaz(QStringLiteral("Bu tarihler arasında raporda satır yok; dosya yazılmadı."));
        return 1;
    }
    std::printf("Yazıldı: %s (%d tablo)\n", qPrintable(dosya), tablolar);
    return 0;
}

// The year-end set into the folder, the steps told as they go.
int yilSonu(Veri& veri, const Komutlar::Secenekler& secenek)
{
    const QString& yil = secenek.yil;
    if (yil.size() != 4 || !QDate(yil.toInt(), 1, 1).isValid() || secenek.cikti.isEmpty()) {
        hataYaz(QStringLiteral("Kullanım: tasinir yil-sonu --veri KLASÖR --yil YYYY --cikti KLASÖR"));
        return 2;
    }
    const YilSonu::Sonuc sonuc = YilSonu::Yaz(
        veri, yil, QDir(secenek.cikti).absolutePath(), YilSonuDenetimi::Denetle(veri.Ayniyat(), veri.Genel(), yil),
        [son = 0](const QString& adim, int no, int adimlar) mutable {
            if (no != son)
                std::printf("%d / %d  %s\n", no, adimlar, qPrintable(adim));
            std::fflush(stdout);
            son = no;
            return true;
        });
    std::printf("Yıl sonu denetiminde %lld bulgu, özette %d fark var.\nYazıldı:\n", qint64(sonuc.bulgular),
                sonuc.farklar);
    for (const QString& dosya : sonuc.dosyalar)
        std::printf("  %s\n", qPrintable(dosya));
    return 0;
}

// The sample's forms: the unit list, the pages of an entry voucher of this
// year that hands durable goods out and of an issue voucher, and the minutes
// of a write-off of the latest year that has one.
int ornekFormlar(Veri& veri, const QString& ciktiSecenegi)
{
    bool harfYok = false;
    const QString cikti = ciktiSecenegi.isEmpty() ? QDir(veri.Klasor()).filePath(QStringLiteral("formlar"))
                                                  : QDir(ciktiSecenegi).absolutePath();
    if (!QDir().mkpath(cikti)) {
        hataYaz(QStringLiteral("Çıktı klasörü oluşturulamadı: %1").arg(cikti));
        return 1;
    }
    QStringList yazilanlar;
    const QString liste = QDir(cikti).filePath(QStringLiteral("unite_listesi.pdf"));
    {
        PdfCikti pdf(liste);
        Yazici p(&pdf);
        uniteListesiYazdir(veri.Genel(), p);
    }
    yazilanlar << liste;

    Veritabani& ayniyat = veri.Ayniyat();
    const QString yil = EnBuyukMetin(ayniyat, QStringLiteral("FIS_B"), QStringLiteral("Mid(Tarih,7,4)"));
    const QString giris =
        AlanGetir(ayniyat, QStringLiteral("FIS"), QStringLiteral("min(FisNo)"),
                  QStringLiteral(" where FCins = 'G' and Mid(Tarih,7,4) = ? and val(Cikan) > 0 "
                                 "and Mid(HesapKod,1,3) <> '150'"),
                  {yil});
    const QString cikis = AlanGetir(ayniyat, QStringLiteral("FIS_B"), QStringLiteral("min(FisNo)"),
                                    QStringLiteral(" where FCins = 'C' and Mid(Tarih,7,4) = ?"), {yil});
    const auto yaz = [&](const QString& no, const QString& cins, const QString& tur) {
        if (no.isEmpty())
            return;
        const QString dosya = QDir(cikti).filePath(QStringLiteral("%1_%2_%3_%4.pdf").arg(tur, cins, yil, no));
        pdfYaz(fisSayfasi(veri, no, cins, yil, tur, harfYok), dosya);
        yazilanlar << dosya;
    };
    for (const char* tur : {"fis", "zimmet", "istek"})
        yaz(giris, QStringLiteral("G"), QString::fromLatin1(tur));
    yaz(cikis, QStringLiteral("C"), QStringLiteral("fis"));

    const QString dusumYili = EnBuyukMetin(ayniyat, QStringLiteral("DUSUM_B"), QStringLiteral("Mid(Tarih,7,4)"));
    const QString dusum = AlanGetir(ayniyat, QStringLiteral("DUSUM_B"), QStringLiteral("min(FisNo)"),
                                    QStringLiteral(" where Mid(Tarih,7,4) = ?"), {dusumYili});
    if (!dusum.isEmpty()) {
        const QString dosya = QDir(cikti).filePath(QStringLiteral("dusum_%1_%2.pdf").arg(dusumYili, dusum));
        pdfYaz(dusumSayfasi(veri, dusum, dusumYili), dosya);
        yazilanlar << dosya;
    }

    const QString yilBasi = QString::number(Saat::Bugun().year());
    for (const char* hangi : {"T", "D"}) {
        const QString h = QString::fromLatin1(hangi);
        const QString dosya = QDir(cikti).filePath(QStringLiteral("defter_%1.pdf").arg(h));
        if (RaporTanimlari::Yaz(*RaporTanimlari::Bul(QStringLiteral("defter")), veri, RaporSuzgecleri::Acilis(yilBasi, h),
                                h, dosya)
            > 0)
            yazilanlar << dosya;
    }

    std::printf("Formlar PDF olarak yazıldı: %s\n", qPrintable(cikti));
    for (const QString& dosya : yazilanlar)
        std::printf("  %s\n", qPrintable(dosya));
    return harfYok ? YaziylaYazilamadi : 0;
}

int kodPlani(Veri& veri, const QStringList& argumanlar)
{
    if (argumanlar.size() < 2) {
        hataYaz(QStringLiteral("Kullanım: tasinir kod-plani-yukle --veri KLASÖR DOSYA"));
        return 2;
    }
    const KodPlaniSonucu sonuc = KodPlaniYukle(veri, argumanlar.at(1));
    std::printf("Hesap planı yüklendi: %d yeni, %d adı değişen, %d aynı kod. Dosya %s olarak okundu.\n",
                sonuc.eklenen, sonuc.adiDegisen, sonuc.ayni, qPrintable(sonuc.okunan.kodlama));
    if (sonuc.okunan.kesilen > 0)
        std::printf("%d ad %lld karakterden uzundu; %lld karakterde kesildi.\n", sonuc.okunan.kesilen,
                    qint64(KodAdiSiniri), qint64(KodAdiSiniri));
    return 0;
}

}

int Komutlar::Calistir(const QStringList& argumanlar, const QString& klasor, const Secenekler& secenek)
{
    const QString komut = argumanlar.value(0);
    try {
        if (komut == QLatin1String("ornek-veri"))
            return ornekVeri(argumanlar, secenek);
        if (komut != QLatin1String("ornek-formlar") && komut != QLatin1String("kod-plani-yukle")
            && komut != QLatin1String("yazdir") && komut != QLatin1String("rapor")
            && komut != QLatin1String("yil-sonu")) {
            hataYaz(QStringLiteral("Bilinmeyen komut: %1 (tasinir --help)").arg(komut));
            return 2;
        }
        // A folder that lacks a file or holds a bad one stops here, before
        // anything is written.
        const std::unique_ptr<Veri> veri = ac(klasor);
        if (komut == QLatin1String("ornek-formlar"))
            return ornekFormlar(*veri, secenek.cikti);
        if (komut == QLatin1String("kod-plani-yukle"))
            return kodPlani(*veri, argumanlar);
        if (komut == QLatin1String("rapor"))
            return rapor(*veri, argumanlar, secenek);
        if (komut == QLatin1String("yil-sonu"))
            return yilSonu(*veri, secenek);
        return yazdir(*veri, argumanlar, secenek);
    } catch (const Hata& h) {
        hataYaz(h.Mesaj());
    }
    return 1;
}
