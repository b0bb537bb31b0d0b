#include "kod_listesi_oku.h"

#include "veri_hatasi.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace {

QString satirHatasi(int no, const QString& mesaj)
{
    return QStringLiteral("Satır %1: %2 Hesap planına hiçbir şey yazılmadı.").arg(no).arg(mesaj);
}

// Below the blank, DEL and the C1 block: nothing a name or code holds. The
// one tab between the columns is checked apart.
bool denetim(QChar c)
{
    return c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() <= 0x9F);
}

// A character as a message shows it: what cannot be seen is escaped.
QString gorunur(QChar c)
{
    if (c == u'\t')
        return QStringLiteral("\\t");
    if (denetim(c))
        return QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QChar(u'0'));
    return c;
}

// A field as a message quotes it, a long one cut short so the message stays
// readable.
QString alinti(const QString& alan)
{
    constexpr qsizetype sinir = 40;
    QString sonuc(u'"');
    for (const QChar c : QStringView(alan).left(sinir))
        sonuc += gorunur(c);
    if (alan.size() > sinir)
        sonuc += u'…';
    return sonuc + u'"';
}

// Windows-1254, the code page Turkish offices save text in. Qt has no
// converter for it on every platform, so the upper half is mapped here:
// 0x80-0x9F hold typographic marks, 0xA0-0xFF are Latin-1 but for six
// Turkish letters. Bytes the code page leaves undefined stay C1 controls, as
// Windows maps them, and are refused as such.
char16_t cp1254(uchar b)
{
    static constexpr char16_t ust[32] = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x008E, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x009E, 0x0178};
    switch (b) {
    case 0xD0:
        return u'Ğ';
    case 0xDD:
        return u'İ';
    case 0xDE:
        return u'Ş';
    case 0xF0:
        return u'ğ';
    case 0xFD:
        return u'ı';
    case 0xFE:
        return u'ş';
    }
    return b >= 0x80 && b < 0xA0 ? ust[b - 0x80] : char16_t(b);
}

// UTF-8 when every byte fits it (a BOM is dropped), else Windows-1254.
QString coz(const QByteArray& ham, QString& kodlama)
{
    // Stateless: a sequence cut off at the end is an error, not kept waiting.
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString metin = utf8.decode(ham);
    if (!utf8.hasError()) {
        kodlama = QStringLiteral("UTF-8");
        return metin;
    }
    kodlama = QStringLiteral("Windows-1254");
    metin.resize(ham.size());
    for (qsizetype i = 0; i < ham.size(); ++i)
        metin[i] = QChar(cp1254(uchar(ham[i])));
    return metin;
}

}

// The plan's form: a main code of three digits, then groups of two.
QList<KodSatiri> KodListesiOku(const QString& dosya, KodListesiBilgisi* bilgi)
{
    QFile f(dosya);
    if (!f.open(QIODevice::ReadOnly))
        throw VeriHatasi(QStringLiteral("\"%1\" okunamadı: %2").arg(dosya, f.errorString()));
    KodListesiBilgisi okunan;
    const QString metin = coz(f.readAll(), okunan.kodlama);
    static const QRegularExpression bicim(QStringLiteral("^[0-9]{3}( [0-9]{2}){0,6}$"));
    static const QRegularExpression satirSonu(QStringLiteral("\\r\\n|\\r|\\n"));
    QList<KodSatiri> satirlar;
    QHash<QString, int> gorulen;
    int no = 0;
    for (const QString& satir : metin.split(satirSonu)) {
        ++no;
        // Before the blank test: a form feed alone is no blank line.
        const auto yabanci = std::find_if(satir.cbegin(), satir.cend(),
                                          [](QChar c) { return c != u'\t' && denetim(c); });
        if (yabanci != satir.cend())
            throw VeriHatasi(satirHatasi(no, QStringLiteral("izin verilmeyen bir denetim karakteri (%1) var: %2.")
                                                 .arg(gorunur(*yabanci), alinti(satir))));
        if (satir.trimmed().isEmpty())
            continue;
        const qsizetype sekme = satir.indexOf(u'\t');
        if (sekme >= 0 && satir.indexOf(u'\t', sekme + 1) >= 0)
            throw VeriHatasi(satirHatasi(
                no, QStringLiteral("iki sütundan fazlası var (ikinci bir sekme): %1.").arg(alinti(satir))));
        if (sekme < 0)
            throw VeriHatasi(satirHatasi(no, QStringLiteral("kod ile adı bir sekme ile ayrılmalı.")));
        const QString kod = satir.left(sekme).trimmed();
        QString ad = satir.mid(sekme + 1).trimmed();
        if (!bicim.match(kod).hasMatch())
            throw VeriHatasi(satirHatasi(
                no, QStringLiteral("%1 kodu XXX XX XX XX XX XX XX biçiminde değil.").arg(alinti(kod))));
        if (ad.isEmpty())
            throw VeriHatasi(satirHatasi(no, QStringLiteral("%1 kodunun adı boş.").arg(alinti(kod))));
        if (const auto onceki = gorulen.constFind(kod); onceki != gorulen.constEnd())
            throw VeriHatasi(satirHatasi(
                no, QStringLiteral("%1 kodu %2. satırda da var.").arg(alinti(kod)).arg(*onceki)));
        if (ad.size() > KodAdiSiniri) {
            ad.truncate(KodAdiSiniri);
            ++okunan.kesilen;
        }
        gorulen.insert(kod, no);
        satirlar.append({no, kod, ad});
    }
    if (satirlar.isEmpty())
        throw VeriHatasi(QStringLiteral("\"%1\" içinde kod yok.").arg(QFileInfo(dosya).fileName()));
    if (bilgi)
        *bilgi = okunan;
    return satirlar;
}
