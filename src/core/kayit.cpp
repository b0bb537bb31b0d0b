#include "kayit.h"

#include "bicim.h"
#include "val_oku.h"

#include <cmath>

namespace {

const char16_t* const Birler[] = {u"", u"Bir", u"İki", u"Üç", u"Dört",
                                  u"Beş", u"Altı", u"Yedi", u"Sekiz", u"Dokuz"};
// "Atmış" is the form the printed forms show.
const char16_t* const Onlar[] = {u"", u"On", u"Yirmi", u"Otuz", u"Kırk",
                                 u"Elli", u"Atmış", u"Yetmiş", u"Seksen", u"Doksan"};
// The groups of a twelve digit amount; "Trilyon" is never reached.
const char16_t* const Olcekler[] = {u"Milyar", u"Milyon", u"Bin", u""};

bool SifirVeyaBos(const QVariant& deger)
{
    const std::optional<double> sayi = SayiDegeri(deger);
    return sayi ? *sayi == 0 : deger.toString().isEmpty();
}

// The Basic Trim: blanks only, tabs stay.
QString Kirp(const QString& metin)
{
    qsizetype bas = 0;
    qsizetype son = metin.size();
    while (bas < son && metin[bas] == u' ')
        ++bas;
    while (son > bas && metin[son - 1] == u' ')
        --son;
    return metin.mid(bas, son - bas);
}

// Printers use a proportional font in which a digit is about two blanks
// wide, so alignment counts characters and pays `dolgu` for each one
// missing. A longer text is not cut.
QString SagaYasla(const QString& bas, const QString& metin, int genislik, QStringView dolgu)
{
    QString sonuc = bas;
    for (qsizetype i = metin.size(); i < genislik; ++i)
        sonuc += dolgu;
    return sonuc + metin;
}

// `bicimlenen` is what goes to Format: the value itself or a text made of it.
QString SayiYasla(QVariant& deger, const QVariant& bicimlenen, int genislik,
                  const QString& desen, QStringView dolgu)
{
    // Format "###" of a zero or empty value is the empty text.
    const QString sonuc = SifirVeyaBos(deger)
        ? QString()
        : SagaYasla(QString(), Format(bicimlenen, desen), genislik, dolgu);
    deger = sonuc;
    return sonuc;
}

[[noreturn]] void Yazilamaz(const QString& neden)
{
    throw BicimHatasi(QStringLiteral("Tutar yazıya çevrilemedi: ") + neden);
}

// The run-time indexed the word tables with a character of the amount's
// text; anything but a digit stopped it with a type mismatch.
int Hane(QStringView metin, qsizetype sira)
{
    if (sira >= metin.size())
        Yazilamaz(QStringLiteral("1 ile 9 kuruş arası yazılamıyor."));
    const QChar c = metin[sira];
    if (c == u'-')
        Yazilamaz(QStringLiteral("eksi tutar yazılamıyor."));
    if (c < u'0' || c > u'9')
        Yazilamaz(QStringLiteral("tutar rakamlarla yazılmış bir tam sayı değil."));
    return c.unicode() - u'0';
}

QString IkiHaneYazi(QStringView metin)
{
    const int onlar = Hane(metin, 0);
    const int birler = Hane(metin, 1);
    return QString::fromUtf16(Onlar[onlar]) + QString::fromUtf16(Birler[birler]);
}

QString UcHaneYazi(QStringView grup)
{
    const int yuzler = Hane(grup, 0);
    QString sonuc;
    if (yuzler == 1)
        sonuc = QStringLiteral("Yüz");
    else if (yuzler > 1)
        sonuc = QString::fromUtf16(Birler[yuzler]) + QStringLiteral("Yüz");
    return sonuc + IkiHaneYazi(grup.mid(1));
}

} // namespace

QString ParaYaz(const QVariant& deger)
{
    return SifirVeyaBos(deger) ? QString() : Format(deger, QStringLiteral("###,###,###.#0"));
}

QString DuzBicim(const QVariant& deger)
{
    return Format(deger, QStringLiteral("#######,###,###.##"));
}

QString Miktar4Yaz(QVariant& deger, int genislik)
{
    return SayiYasla(deger, deger, genislik, QStringLiteral("####,###,##0.###0"), u"  ");
}

QString Tutar2Yaz(QVariant& deger, int genislik)
{
    return SayiYasla(deger, deger, genislik, QStringLiteral("####,###,##0.#0"), u"  ");
}

QString Tutar2YazTek(QVariant& deger, int genislik)
{
    return SayiYasla(deger, NoktaVirgul(SayiMetni(deger)), genislik,
                     QStringLiteral("####,###,##0.#0"), u" ");
}

QString SagaDayaCift(QString& metin, int genislik)
{
    metin = SagaYasla(QStringLiteral(" "), Kirp(metin), genislik, u"  ");
    return metin;
}

QString SagaDaya(QString& metin, int genislik)
{
    metin = SifirVeyaBos(metin) ? QString()
                                : SagaYasla(QStringLiteral(" "), Kirp(metin), genislik, u" ");
    return metin;
}

QString VirgulNokta(const QString& metin)
{
    return QString(metin).replace(u',', u'.');
}

QString AyracNokta(const QString& metin)
{
    return VirgulNokta(metin);
}

QString NoktaVirgul(const QString& metin)
{
    return QString(metin).replace(u'.', u',');
}

double Val(const QString& metin)
{
    return ValOku(metin.utf16(), metin.utf16() + metin.size());
}

QString YaziylaTutar(double tutar)
{
    // The run-time's Str writes '.' where SayiMetni writes ','; either fails
    // the same way inside a group.
    QString metin = SayiMetni(tutar);
    if (metin.size() < 12)
        metin = metin.rightJustified(12, u'0');
    const QStringView rakamlar = QStringView(metin).left(12);

    QString sonuc;
    for (int i = 0; i < 4; ++i) {
        QStringView grup = rakamlar.mid(i * 3, 3);
        if (grup == u"000")
            continue;
        // One thousand is "Bin", never "BirBin".
        if (i == 2 && grup == u"001")
            grup = u"000";
        sonuc += UcHaneYazi(grup) + QString::fromUtf16(Olcekler[i]);
    }
    return sonuc;
}

QString KurusYazi(double kurus)
{
    return IkiHaneYazi(SayiMetni(kurus));
}

QString TutarYaziyla(double toplam)
{
    const QString metin = SayiMetni(toplam);
    const QString lira = YaziylaTutar(std::floor(toplam)) + QStringLiteral(" Lira ");
    const qsizetype virgul = metin.indexOf(u',');
    if (virgul < 0)
        return lira;
    QString kurus = metin.mid(virgul + 1);
    if (kurus.size() == 1)
        kurus += u'0';
    return lira + KurusYazi(Val(kurus)) + QStringLiteral(" kuruş");
}
