#include "bicim.h"

#include <QList>
#include <QLocale>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace {

// A number as decimal digits: the value is 0.d1d2d3... x 10^nokta, so the
// first `nokta` digits (and zeros beyond the last one) stand before the
// decimal sign. No digits at all is zero.
struct Rakamlar
{
    bool eksi = false;
    std::string rakam;
    int nokta = 0;
};

// The number split at the decimal sign, without leading zeros in the whole
// part and without trailing zeros in the fraction.
struct TamKesir
{
    std::string tam;
    std::string kesir;
};

// Beyond this the run-time overflows or reads zero; such a text is not taken
// for a number.
constexpr int EnBuyukUs = 400;

void SondakiSifirlariAt(std::string& s)
{
    s.erase(s.find_last_not_of('0') + 1);
}

TamKesir Ayir(const Rakamlar& r)
{
    TamKesir s;
    const int n = int(r.rakam.size());
    if (r.nokta > 0) {
        s.tam = r.rakam.substr(0, std::min(r.nokta, n));
        s.tam.append(std::max(0, r.nokta - n), '0');
        s.tam.erase(0, std::min(s.tam.find_first_not_of('0'), s.tam.size()));
    }
    if (r.nokta < n) {
        s.kesir.assign(std::max(0, -r.nokta), '0');
        s.kesir += r.rakam.substr(std::max(0, r.nokta));
        SondakiSifirlariAt(s.kesir);
    }
    return s;
}

// Adds one at the last digit; true when it carries out of the first.
bool BirEkle(std::string& s)
{
    for (auto i = s.rbegin(); i != s.rend(); ++i) {
        if (*i != '9') {
            ++*i;
            return false;
        }
        *i = '0';
    }
    return true;
}

void Yuvarla(TamKesir& s, int basamak)
{
    if (int(s.kesir.size()) <= basamak)
        return;
    const bool yukari = s.kesir[basamak] >= '5';
    s.kesir.resize(basamak);
    if (yukari && BirEkle(s.kesir) && BirEkle(s.tam))
        s.tam.insert(0, 1, '1');
    SondakiSifirlariAt(s.kesir);
}

// The digits the run-time works on: it first turns a Double into text with
// fifteen significant digits (seven for a Single).
std::optional<Rakamlar> KayanRakamlari(double d, int anlamli)
{
    if (!std::isfinite(d))
        return std::nullopt;
    char tampon[32];
    const auto son = std::to_chars(tampon, tampon + sizeof tampon, std::fabs(d),
                                   std::chars_format::scientific, anlamli - 1).ptr;
    Rakamlar r;
    r.eksi = d < 0;
    const char* p = tampon;
    for (; *p != 'e'; ++p) {
        if (*p != '.')
            r.rakam += *p;
    }
    int us = 0;
    std::from_chars(p + 1 + (p[1] == '+'), son, us);
    r.nokta = us + 1;
    return r;
}

Rakamlar TamsayiRakamlari(bool eksi, quint64 buyukluk)
{
    char tampon[24];
    const auto son = std::to_chars(tampon, tampon + sizeof tampon, buyukluk).ptr;
    Rakamlar r;
    r.eksi = eksi && buyukluk != 0;
    r.rakam.assign(tampon, son);
    r.nokta = int(r.rakam.size());
    return r;
}

bool Rakam(QChar c)
{
    return c >= u'0' && c <= u'9';
}

// A text read as the run-time reads a number under the Turkish setting: a
// sign, digits with '.' anywhere between them ignored, ',' and the fraction,
// and an exponent.
std::optional<Rakamlar> MetinRakamlari(const QString& metin)
{
    const QStringView s = QStringView(metin).trimmed();
    const qsizetype n = s.size();
    qsizetype i = 0;
    Rakamlar r;
    bool eksi = false;
    if (i < n && (s[i] == u'-' || s[i] == u'+'))
        eksi = s[i++] == u'-';
    int tamRakam = 0;
    for (; i < n; ++i) {
        if (Rakam(s[i])) {
            r.rakam += char(s[i].unicode());
            ++tamRakam;
        } else if (s[i] != u'.' || tamRakam == 0) {
            break;
        }
    }
    if (i < n && s[i] == u',') {
        for (++i; i < n && Rakam(s[i]); ++i)
            r.rakam += char(s[i].unicode());
    }
    if (r.rakam.empty())
        return std::nullopt;
    int us = 0;
    if (i < n && (s[i] == u'e' || s[i] == u'E')) {
        ++i;
        bool usEksi = false;
        if (i < n && (s[i] == u'-' || s[i] == u'+'))
            usEksi = s[i++] == u'-';
        if (i == n || !Rakam(s[i]))
            return std::nullopt;
        for (; i < n && Rakam(s[i]); ++i)
            us = std::min(us * 10 + (s[i].unicode() - u'0'), 10 * EnBuyukUs);
        if (usEksi)
            us = -us;
    }
    if (i != n)
        return std::nullopt;
    const auto ilk = r.rakam.find_first_not_of('0');
    if (ilk == std::string::npos)
        return Rakamlar{};
    r.rakam.erase(0, ilk);
    r.nokta = tamRakam - int(ilk) + us;
    if (std::abs(r.nokta) > EnBuyukUs)
        return std::nullopt;
    r.eksi = eksi;
    return r;
}

// Basic has numbers for these; anything else is read through its text.
bool SayiTuru(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
        return true;
    default:
        return false;
    }
}

std::optional<Rakamlar> DegerRakamlari(const QVariant& v)
{
    switch (v.typeId()) {
    case QMetaType::UnknownType:
        return Rakamlar{};
    case QMetaType::Double:
        return KayanRakamlari(v.toDouble(), 15);
    case QMetaType::Float:
        return KayanRakamlari(v.toDouble(), 7);
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
    case QMetaType::ULong:
        return TamsayiRakamlari(false, v.toULongLong());
    default:
        if (!SayiTuru(v))
            return MetinRakamlari(v.toString());
        const qlonglong x = v.toLongLong();
        return TamsayiRakamlari(x < 0, x < 0 ? 0 - quint64(x) : quint64(x));
    }
}

double Sayi(const Rakamlar& r)
{
    if (r.rakam.empty())
        return 0.0;
    const std::string metin = "0." + r.rakam + 'e' + std::to_string(r.nokta);
    double d = 0.0;
    std::from_chars(metin.data(), metin.data() + metin.size(), d);
    return r.eksi ? -d : d;
}

struct Desen
{
    enum class Tur { Harf, TamYeri, Ondalik, KesirYeri };
    struct Parca
    {
        Tur tur;
        QChar harf;
    };
    QList<Parca> parcalar;
    int tamYeri = 0;
    int tamZorunlu = 0;  // from the first '0' of the whole part to its end
    int kesirYeri = 0;
    int kesirZorunlu = 0; // up to the last '0' of the fraction: a '#' before it acts as '0'
    bool gruplu = false;
};

Desen DeseniOku(const QString& metin)
{
    Desen d;
    bool ondalikGecti = false;
    bool sayiBasladi = false;
    int ilkSifir = -1;
    for (const QChar c : metin) {
        if (c == u'#' || c == u'0') {
            sayiBasladi = true;
            if (ondalikGecti) {
                ++d.kesirYeri;
                if (c == u'0')
                    d.kesirZorunlu = d.kesirYeri;
                d.parcalar.append({Desen::Tur::KesirYeri, c});
            } else {
                if (c == u'0' && ilkSifir < 0)
                    ilkSifir = d.tamYeri;
                ++d.tamYeri;
                d.parcalar.append({Desen::Tur::TamYeri, c});
            }
        } else if (c == u'.' && !ondalikGecti) {
            ondalikGecti = sayiBasladi = true;
            d.parcalar.append({Desen::Tur::Ondalik, c});
        } else if (c == u',' && sayiBasladi) {
            d.gruplu = true;
        } else {
            d.parcalar.append({Desen::Tur::Harf, c});
        }
    }
    if (ilkSifir >= 0)
        d.tamZorunlu = d.tamYeri - ilkSifir;
    return d;
}

QString Bicimle(const Rakamlar& r, const Desen& d)
{
    TamKesir s = Ayir(r);
    Yuvarla(s, d.kesirYeri);
    if (int(s.tam.size()) < d.tamZorunlu)
        s.tam.insert(0, d.tamZorunlu - s.tam.size(), '0');

    const int uzunluk = int(s.tam.size());
    // Digits beyond the placeholders all go to the first one.
    const int fazla = uzunluk - d.tamYeri;
    bool isaretYazildi = !r.eksi;
    int tamSira = 0;
    int kesirSira = 0;
    QString sonuc;
    const auto isaretYaz = [&] {
        if (!isaretYazildi)
            sonuc += u'-';
        isaretYazildi = true;
    };
    const auto tamYaz = [&](int bas, int son) {
        for (int i = std::max(0, bas); i < son; ++i) {
            sonuc += QChar(s.tam[i]);
            const int kalan = uzunluk - 1 - i;
            if (d.gruplu && kalan > 0 && kalan % 3 == 0)
                sonuc += u'.';
        }
    };
    for (const Desen::Parca& p : d.parcalar) {
        switch (p.tur) {
        case Desen::Tur::Harf:
            sonuc += p.harf;
            break;
        case Desen::Tur::TamYeri: {
            isaretYaz();
            const int son = fazla + tamSira + 1;
            tamYaz(tamSira == 0 ? 0 : son - 1, son);
            ++tamSira;
            break;
        }
        case Desen::Tur::Ondalik:
            isaretYaz();
            // Without a whole-part placeholder the whole digits still show.
            if (d.tamYeri == 0)
                tamYaz(0, uzunluk);
            sonuc += u',';
            break;
        case Desen::Tur::KesirYeri:
            if (kesirSira < int(s.kesir.size()))
                sonuc += QChar(s.kesir[kesirSira]);
            else if (kesirSira < d.kesirZorunlu)
                sonuc += u'0';
            ++kesirSira;
            break;
        }
    }
    return sonuc;
}

} // namespace

QString Format(const QVariant& deger, const QString& desen)
{
    const std::optional<Rakamlar> r = DegerRakamlari(deger);
    if (!r)
        return deger.toString();
    return Bicimle(*r, DeseniOku(desen));
}

QString SayiMetni(double deger)
{
    const std::optional<Rakamlar> r = KayanRakamlari(deger, 15);
    if (!r)
        return QString::number(deger);
    std::string rakam = r->rakam;
    SondakiSifirlariAt(rakam);
    if (rakam.empty())
        return QStringLiteral("0");

    QString sonuc = r->eksi ? QStringLiteral("-") : QString();
    const int us = r->nokta - 1;
    if (us >= 15 || us < -4) {
        sonuc += QChar(rakam[0]);
        if (rakam.size() > 1)
            sonuc += u',' + QString::fromLatin1(rakam.data() + 1, qsizetype(rakam.size() - 1));
        sonuc += us < 0 ? u"E-" : u"E+";
        sonuc += QString::number(std::abs(us)).rightJustified(2, u'0');
        return sonuc;
    }
    const TamKesir s = Ayir(*r);
    sonuc += s.tam.empty() ? QStringLiteral("0") : QString::fromStdString(s.tam);
    if (!s.kesir.empty())
        sonuc += u',' + QString::fromStdString(s.kesir);
    return sonuc;
}

QString SayiMetni(const QVariant& deger)
{
    if (!deger.isValid())
        return QString();
    return SayiTuru(deger) ? SayiMetni(deger.toDouble()) : deger.toString();
}

std::optional<double> SayiDegeri(const QVariant& deger)
{
    if (SayiTuru(deger))
        return deger.toDouble();
    const std::optional<Rakamlar> r = MetinRakamlari(deger.toString());
    if (!r)
        return std::nullopt;
    return Sayi(*r);
}

QString BuyukHarf(const QString& metin)
{
    return QLocale(QLocale::Turkish).toUpper(metin);
}
