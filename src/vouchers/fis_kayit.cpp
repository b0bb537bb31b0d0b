#include "fis_kayit.h"

#include "bicim.h"
#include "kayit.h"
#include "saat.h"
#include "tek_deger.h"
#include "veritabani.h"

#include <QRegularExpression>


QString SatirHucresi(const QList<QStringList>& satirlar, int satir, int sutun)
{
    if (satir < 1 || satir > satirlar.size())
        return {};
    return satirlar.at(satir - 1).value(sutun);
}

QString FisEkrani::Hucre(int satir, int sutun) const
{
    return SatirHucresi(Satirlar, satir, sutun);
}

void FisEkrani::HucreYaz(int satir, int sutun, const QString& metin)
{
    while (Satirlar.size() < satir)
        Satirlar.append(QStringList());
    QStringList& hucreler = Satirlar[satir - 1];
    while (hucreler.size() < FisSutun::Sayi)
        hucreler.append(QString());
    hucreler[sutun] = metin;
}

namespace {

// A text going into a field is trimmed and cut to the column's limit.
QString kes(const QString& metin, int enCok = -1)
{
    const QString kirpik = metin.trimmed();
    return enCok < 0 ? kirpik : kirpik.left(enCok);
}


QString bugunMetni()
{
    return Saat::Bugun().toString(QStringLiteral("dd.MM.yyyy"));
}

// Today's day and month in the working year: Mid(Date,1,6) + year.
QString bugunCalismaYilinda(const QString& yil)
{
    return bugunMetni().left(6) + yil;
}

const QString fisKosulu = QStringLiteral(" where FisNo = ? and Fcins = ? and Mid(Tarih,7,4) = ? ");

}

const QStringList& FisKayit::IslemTurleri()
{
    static const QStringList turler = {
        QStringLiteral("SatınAlma"),       QStringLiteral("Üretim"),       QStringLiteral("DevirYoluylaAlma"),
        QStringLiteral("SayımFazlası"),    QStringLiteral("İade"),         QStringLiteral("BağışAlma"),
        QStringLiteral("Yardım"),          QStringLiteral("DeğerArtışı"),  QStringLiteral("HurdayaAyırma"),
        QStringLiteral("Tüketim"),         QStringLiteral("Satma"),        QStringLiteral("İmha"),
        QStringLiteral("Fire"),            QStringLiteral("Kayıp"),        QStringLiteral("Çalınma"),
        QStringLiteral("Yıpranma"),        QStringLiteral("Bozulma"),      QStringLiteral("SayımNoksanı"),
        QStringLiteral("Devretme/Bağışlama"),
    };
    return turler;
}

QString FisKayit::IslemAdi(int kod)
{
    return kod >= 1 && kod <= IslemTurleri().size() ? IslemTurleri().at(kod - 1) : QString();
}

std::optional<qint64> FisKayit::PozitifTamSayi(const QString& metin)
{
    static const QRegularExpression rakamlar(QStringLiteral("^[0-9]+$"));
    const QString kirpik = metin.trimmed();
    bool tamam = rakamlar.match(kirpik).hasMatch();
    const qint64 sayi = tamam ? kirpik.toLongLong(&tamam) : 0;
    if (!tamam || sayi <= 0)
        return std::nullopt;
    return sayi;
}

qint64 FisKayit::FisNoSayisi(const QString& fisNo)
{
    if (const std::optional<qint64> no = PozitifTamSayi(fisNo))
        return *no;
    throw Hata(QStringLiteral("\"%1\" bir fiş numarası değil. Fiş numarası yalnız rakamlardan oluşan, "
                              "sıfırdan büyük bir sayıdır; hiçbir şey yazılmadı.")
                   .arg(fisNo.trimmed()));
}

bool FisKayit::AyOnayi(const QString& calisAy, const std::function<bool()>& aySorusu)
{
    return Saat::Bugun().month() == int(Val(calisAy)) || aySorusu();
}

int FisKayit::EnSon(Veritabani& vt, const QString& fcins, const QString& yil)
{
    return int(EnBuyukSayi(vt, QStringLiteral("FIS_B"), QStringLiteral("FisNo"),
                           QStringLiteral(" where  Fcins = ? and mid(Tarih,7,4) = ? "), {fcins, yil}))
           + 1;
}

QString FisKayit::SicilNo(const QString& hesapKod, const QString& yil, const QString& fisNo)
{
    return SayiMetni(Val(hesapKod)) + yil + SayiMetni(Val(fisNo)) + QStringLiteral("0");
}

KayitSonucu FisKayit::Kaydet(Veritabani& vt, FisEkrani& fis, const std::function<bool()>& aySorusu)
{
    if (fis.FisNo.trimmed().isEmpty() || Val(fis.FisNo) == 0)
        return KayitSonucu::FisNoYok;
    const qint64 no = FisNoSayisi(fis.FisNo);
    if (fis.Hucre(1, FisSutun::HesapKod).isEmpty())
        return KayitSonucu::IlkSatirBos;
    if (!AyOnayi(fis.CalisAy, aySorusu))
        return KayitSonucu::Vazgecildi;

    const QString yil = fis.CalisYil;
    Islem islem(vt);

    // The head. Its document date and description are those of the first
    // line; the two date fallbacks differ on purpose.
    if (fis.KabulTarih.isEmpty())
        fis.KabulTarih = bugunCalismaYilinda(yil);
    if (fis.Hucre(1, FisSutun::BelgeTarih).isEmpty())
        fis.HucreYaz(1, FisSutun::BelgeTarih, QStringLiteral("01.01.") + yil);
    const QString belgeTarih =
        fis.Hucre(1, FisSutun::BirimFiyat).isEmpty() ? bugunCalismaYilinda(yil) : kes(fis.Hucre(1, FisSutun::BelgeTarih));
    const QVariantList bas = {no,                     fis.Tarih,
                              kes(fis.KabulSayi),     fis.KabulTarih,
                              kes(fis.TeslimAlan, 32), kes(fis.NeredenGeldigi, 25),
                              kes(fis.FCins),         kes(fis.Hucre(1, FisSutun::Ozellik), 35),
                              belgeTarih,             kes(fis.BelgeSayi, 12),
                              kes(fis.BelgeTur, 10)};
    QSqlQuery var = vt.Sorgu(QStringLiteral("select rowid from FIS_B") + fisKosulu, {no, fis.FCins, yil});
    if (var.next()) {
        vt.Hazir(QStringLiteral("update FIS_B set FisNo = ?, Tarih = ?, KabulSayi = ?, KabulTarih = ?, "
                                   "TeslimAlan = ?, NeredenGeldigi = ?, FCins = ?, Ozellik = ?, BelgeTarih = ?, "
                                 "BelgeSayi = ?, BelgeTur = ? where rowid = ?"))
            .Calistir(bas + QVariantList{var.value(0)});
    } else {
        vt.Hazir(QStringLiteral("insert into FIS_B (FisNo, Tarih, KabulSayi, KabulTarih, TeslimAlan, "
                                "NeredenGeldigi, FCins, Ozellik, BelgeTarih, BelgeSayi, BelgeTur) "
                                "values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"))
            .Calistir(bas);
    }

    // The lines: all deleted, then one row per filled grid row. A skipped
    // row leaves its line number unused.
    vt.Hazir(QStringLiteral("Delete from FIS") + fisKosulu).Calistir({no, fis.FCins, yil});
    HazirKomut& ekle = vt.Hazir(QStringLiteral(
        "insert into FIS (Satir, Tarih, FisNo, HesapKod, Ozellik, Birimi, Miktar, FCins, BirimFiyat, "
        "BelgeTarih, BelgeSayi, Unite, IslemTur, SicilNo, KDV, Cikan, KimeVerildigi, AmbarNo, OzelKod, "
        "KabulTarih, KabulSayi, FCinss) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, '')"));
    const QString tarihYili = fis.Tarih.mid(6, 4);
    for (int i = 1; i <= fis.Satirlar.size(); ++i) {
        if (fis.Hucre(i, FisSutun::HesapKod).isEmpty())
            continue;
        if (fis.Hucre(i, FisSutun::BelgeTarih).trimmed().isEmpty())
            fis.HucreYaz(i, FisSutun::BelgeTarih, bugunMetni());
        const QString hesapKod = kes(fis.Hucre(i, FisSutun::HesapKod), 20);
        const QVariantList degerler = {
            i,
            fis.Tarih,
            no,
            hesapKod,
            kes(fis.Hucre(i, FisSutun::Ozellik), 30),
            kes(fis.Hucre(i, FisSutun::Birimi), 7),
            fis.Hangi == QLatin1String("C") ? QString() : kes(fis.Hucre(i, FisSutun::Miktar), 14),
            kes(fis.FCins),
            kes(fis.Hucre(i, FisSutun::BirimFiyat), 20),
            kes(fis.Hucre(i, FisSutun::BelgeTarih)),
            kes(fis.BelgeSayi),
            kes(fis.Hucre(i, FisSutun::Unite), 4),
            Val(fis.Hucre(i, FisSutun::IslemTur)),
            SicilNo(hesapKod, tarihYili, fis.FisNo),
            Val(fis.Hucre(i, FisSutun::KDV)),
            kes(fis.Hucre(i, FisSutun::Cikan), 14),
            kes(fis.Hucre(i, FisSutun::KimeVerildigi), 30),
            Val(fis.Hucre(i, FisSutun::AmbarNo).left(7)),
            kes(fis.Hucre(i, FisSutun::OzelKod), 7),
            fis.KabulTarih,
            kes(fis.KabulSayi),
        };
        ekle.Calistir(degerler);
    }
    islem.Onayla();
    return KayitSonucu::Kaydedildi;
}

bool FisKayit::Getir(Veritabani& vt, FisEkrani& fis)
{
    if (fis.FisNo.trimmed().isEmpty())
        return false;
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select FisNo, Tarih, KabulTarih, KabulSayi, BelgeSayi, TeslimAlan, "
                                          "NeredenGeldigi, BelgeTur From FIS_B")
                               + fisKosulu,
                           {FisNoSayisi(fis.FisNo), fis.FCins, fis.CalisYil});
    if (!q.next())
        return false;
    fis.FisNo = q.value(0).toString();
    fis.Tarih = q.value(1).toString();
    fis.KabulTarih = q.value(2).toString();
    fis.KabulSayi = q.value(3).toString();
    fis.BelgeSayi = q.value(4).toString();
    fis.TeslimAlan = q.value(5).toString();
    fis.NeredenGeldigi = q.value(6).toString();
    fis.BelgeTur = q.value(7).toString().trimmed();
    return true;
}

FisSatirlari FisKayit::SatirlariGetir(Veritabani& ayniyat, Veritabani& genel, const QString& fisNo, const QString& fcins,
                                      const QString& yil)
{
    FisSatirlari sonuc;
    QSqlQuery q = ayniyat.Sorgu(
        QStringLiteral("Select Satir, HesapKod, '', Ozellik, Birimi, Miktar, BirimFiyat, BelgeTarih, Unite, "
                       "IslemTur, Cikan, KimeVerildigi, AmbarNo, KDV, OzelKod From FIS "
                       "Where FisNo = ? and Mid(Tarih,7,4) = ?  and Fcins = ? Order by Satir"),
        {FisNoSayisi(fisNo), yil, fcins});
    while (q.next()) {
        QStringList satir;
        for (int i = FisSutun::Sira; i <= FisSutun::OzelKod; ++i)
            satir << q.value(i).toString();
        satir << QString() << QString();
        sonuc.hucreler << satir;
    }
    if (sonuc.hucreler.isEmpty())
        return sonuc;
    for (QStringList& satir : sonuc.hucreler) {
        const QString& kod = satir.at(FisSutun::HesapKod);
        const QString& unite = satir.at(FisSutun::Unite);
        if (!kod.isEmpty())
            satir[FisSutun::MalzAdi] = AlanGetir(genel, QStringLiteral("Urun_K"), QStringLiteral("MalzAdi"),
                                                 QStringLiteral(" where HesapKod = ? "), {kod});
        sonuc.islemAdlari << (kod.isEmpty() ? QString() : IslemAdi(int(Val(satir.at(FisSutun::IslemTur)))));
        sonuc.uniteAdlari << (Val(unite) != 0
                                  ? AlanGetir(genel, QStringLiteral("Unite_K"), QStringLiteral("UniteAd"),
                                              QStringLiteral(" where UniteKod = ? "), {unite})
                                  : QString());
    }
    return sonuc;
}

void FisKayit::Sil(Veritabani& vt, const FisEkrani& fis)
{
    const QVariantList anahtar = {FisNoSayisi(fis.FisNo), fis.Tarih.mid(6, 4), fis.FCins};
    Islem islem(vt);
    vt.Calistir(QStringLiteral("Delete from FIS_B where FisNo = ? and Mid(Tarih, 7, 4) = ? and Fcins = ?"), anahtar);
    vt.Calistir(QStringLiteral("Delete from FIS where FisNo = ? and Mid(Tarih, 7, 4) = ? and Fcins = ?"), anahtar);
    islem.Onayla();
}

void FisKayit::Temizle(FisEkrani& fis)
{
    fis.Tarih = bugunCalismaYilinda(fis.CalisYil);
    fis.Satirlar.clear();
    fis.KabulSayi.clear();
    fis.KabulTarih = bugunMetni();
    fis.TeslimAlan.clear();
    fis.BelgeTur.clear();
    fis.BelgeSayi.clear();
    fis.NeredenGeldigi.clear();
}
