#include "sql_islevleri.h"

#include "val_oku.h"
#include "veri_hatasi.h"

#include <QChar>
#include <QSqlDriver>
#include <QSqlQuery>
#include <QVariant>

#include <sqlite3.h>

#include <optional>

namespace {

// Reads code points from UTF-8 bytes.
struct Utf8Okuyucu
{
    const unsigned char* p;
    const unsigned char* son;
    bool bitti() const { return p >= son; }
    char32_t al()
    {
        const unsigned char c = *p++;
        if (c < 0x80)
            return c;
        int ek = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC0 ? 1 : 0;
        char32_t kod = c & (0x3F >> ek);
        while (ek-- > 0 && p < son && (*p & 0xC0) == 0x80)
            kod = (kod << 6) | (*p++ & 0x3F);
        return kod;
    }
};

// Reads code points from UTF-16 units.
struct Utf16Okuyucu
{
    const char16_t* p;
    const char16_t* son;
    bool bitti() const { return p >= son; }
    char32_t al()
    {
        const char16_t c = *p++;
        if (QChar::isHighSurrogate(c) && p < son && QChar::isLowSurrogate(*p))
            return QChar::surrogateToUcs4(c, *p++);
        return c;
    }
};

Utf16Okuyucu okuyucu(QStringView s)
{
    return {reinterpret_cast<const char16_t*>(s.utf16()), reinterpret_cast<const char16_t*>(s.utf16()) + s.size()};
}

// Primary weight of a folded code point: the Turkish alphabet in its order
// (with q, w, x where an alphabet with them puts them), marks such as â and
// î on their base letter; digits, blanks and signs before every letter.
char32_t siraAgirligi(char32_t c)
{
    static constexpr char32_t alfabe[] = {
        U'a', U'b', U'c', U'ç', U'd', U'e', U'f', U'g', U'ğ', U'h', U'ı', U'i', U'j', U'k', U'l',
        U'm', U'n', U'o', U'ö', U'p', U'q', U'r', U's', U'ş', U't', U'u', U'ü', U'v', U'w', U'x',
        U'y', U'z'};
    switch (c) {
    case U'â': c = U'a'; break;
    case U'î': c = U'i'; break;
    case U'û': c = U'u'; break;
    default: break;
    }
    if (c < 0x80 && !(c >= U'a' && c <= U'z'))
        return c;
    for (std::size_t i = 0; i < std::size(alfabe); ++i)
        if (alfabe[i] == c)
            return 0x10000 + char32_t(i);
    return 0x20000 + c;
}

template <typename Okuyucu>
int karsilastir(Okuyucu a, Okuyucu b)
{
    while (!a.bitti() && !b.bitti()) {
        const char32_t x = siraAgirligi(SqlIslevleri::TurkceKucuk(a.al()));
        const char32_t y = siraAgirligi(SqlIslevleri::TurkceKucuk(b.al()));
        if (x != y)
            return x < y ? -1 : 1;
    }
    if (a.bitti() && b.bitti())
        return 0;
    return a.bitti() ? -1 : 1;
}

// Classic backtracking match on the last star; linear for the patterns the
// lists build ("text%").
template <typename Okuyucu>
bool benzer(Okuyucu metin, Okuyucu kalip, char32_t kacis)
{
    Okuyucu yildizKalip{nullptr, nullptr};
    Okuyucu yildizMetin{nullptr, nullptr};
    bool yildizVar = false;
    for (;;) {
        if (!kalip.bitti()) {
            Okuyucu kalipOnce = kalip;
            char32_t k = kalip.al();
            bool duz = false;
            if (k == kacis && kacis != 0 && !kalip.bitti()) {
                k = kalip.al();
                duz = true;
            }
            if (!duz && (k == U'%' || k == U'*')) {
                yildizVar = true;
                yildizKalip = kalip;
                yildizMetin = metin;
                continue;
            }
            if (!metin.bitti()) {
                Okuyucu metinOnce = metin;
                const char32_t m = metin.al();
                if ((!duz && k == U'_')
                    || SqlIslevleri::TurkceKucuk(m) == SqlIslevleri::TurkceKucuk(k))
                    continue;
                metin = metinOnce;
            }
            kalip = kalipOnce;
        } else if (metin.bitti()) {
            return true;
        }
        if (!yildizVar || yildizMetin.bitti())
            return false;
        yildizMetin.al();
        metin = yildizMetin;
        kalip = yildizKalip;
    }
}

Utf8Okuyucu metinDegeri(sqlite3_value* v)
{
    const auto* p = sqlite3_value_text(v);
    return {p, p + sqlite3_value_bytes(v)};
}

// The text of a Trim or a date, its leading blanks passed over; a NULL
// gives NULL as the result and nothing to read.
std::optional<Utf8Okuyucu> bosluksuzMetin(sqlite3_context* ctx, sqlite3_value* v)
{
    if (sqlite3_value_type(v) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return std::nullopt;
    }
    Utf8Okuyucu s = metinDegeri(v);
    while (s.p < s.son && *s.p == ' ')
        ++s.p;
    return s;
}

void mid(sqlite3_context* ctx, int argc, sqlite3_value** argv)
{
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    const sqlite3_int64 bas = sqlite3_value_int64(argv[1]);
    if (bas < 1) {
        sqlite3_result_error(ctx, "Mid: geçersiz başlangıç", -1);
        return;
    }
    sqlite3_int64 uzunluk = -1;
    if (argc == 3) {
        if (sqlite3_value_type(argv[2]) == SQLITE_NULL) {
            sqlite3_result_null(ctx);
            return;
        }
        uzunluk = sqlite3_value_int64(argv[2]);
        if (uzunluk < 0) {
            sqlite3_result_error(ctx, "Mid: geçersiz uzunluk", -1);
            return;
        }
    }
    Utf8Okuyucu s = metinDegeri(argv[0]);
    for (sqlite3_int64 i = 1; i < bas && !s.bitti(); ++i)
        s.al();
    const unsigned char* ilk = s.p;
    if (uzunluk < 0) {
        s.p = s.son;
    } else {
        for (sqlite3_int64 i = 0; i < uzunluk && !s.bitti(); ++i)
            s.al();
    }
    sqlite3_result_text(ctx, reinterpret_cast<const char*>(ilk), int(s.p - ilk), SQLITE_TRANSIENT);
}

void val(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    switch (sqlite3_value_type(argv[0])) {
    case SQLITE_NULL:
        sqlite3_result_null(ctx);
        return;
    case SQLITE_INTEGER:
        sqlite3_result_int64(ctx, sqlite3_value_int64(argv[0]));
        return;
    case SQLITE_FLOAT:
        sqlite3_result_double(ctx, sqlite3_value_double(argv[0]));
        return;
    default: {
        const Utf8Okuyucu s = metinDegeri(argv[0]);
        sqlite3_result_double(ctx, ValOku(s.p, s.son));
    }
    }
}

void len(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    Utf8Okuyucu s = metinDegeri(argv[0]);
    sqlite3_int64 n = 0;
    for (; !s.bitti(); ++n)
        s.al();
    sqlite3_result_int64(ctx, n);
}

// The Basic Trim takes blanks only, not tabs.
void trim(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    std::optional<Utf8Okuyucu> metin = bosluksuzMetin(ctx, argv[0]);
    if (!metin)
        return;
    Utf8Okuyucu& s = *metin;
    while (s.son > s.p && s.son[-1] == ' ')
        --s.son;
    sqlite3_result_text(ctx, reinterpret_cast<const char*>(s.p), int(s.son - s.p), SQLITE_TRANSIENT);
}

// True is -1, as the engine the queries come from answers. ISNULL is also a
// keyword of SQLite, so a statement calls the function as "IsNull"(x).
void isNull(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    sqlite3_result_int(ctx, sqlite3_value_type(argv[0]) == SQLITE_NULL ? -1 : 0);
}

void like(sqlite3_context* ctx, int argc, sqlite3_value** argv)
{
    // SQLite passes the pattern first: like(pattern, text [, escape]).
    if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL) {
        sqlite3_result_null(ctx);
        return;
    }
    char32_t kacis = 0;
    if (argc == 3 && sqlite3_value_type(argv[2]) != SQLITE_NULL) {
        Utf8Okuyucu k = metinDegeri(argv[2]);
        if (!k.bitti())
            kacis = k.al();
    }
    sqlite3_result_int(ctx, benzer(metinDegeri(argv[1]), metinDegeri(argv[0]), kacis) ? 1 : 0);
}

int iki(const unsigned char*& p, const unsigned char* son, int enCok)
{
    int deger = 0;
    int n = 0;
    while (p < son && n < enCok && *p >= '0' && *p <= '9') {
        deger = deger * 10 + (*p++ - '0');
        ++n;
    }
    return n == 0 ? -1 : deger;
}

// dd.mm.yyyy (one-digit day and month too) as yyyymmdd; NULL for anything
// that is no date, so that such a row falls out of a date frame.
void tarihSayi(sqlite3_context* ctx, int, sqlite3_value** argv)
{
    std::optional<Utf8Okuyucu> metin = bosluksuzMetin(ctx, argv[0]);
    if (!metin)
        return;
    Utf8Okuyucu& s = *metin;
    const int gun = iki(s.p, s.son, 2);
    const bool nokta1 = s.p < s.son && (*s.p == '.' || *s.p == '/');
    if (nokta1)
        ++s.p;
    const int ay = iki(s.p, s.son, 2);
    const bool nokta2 = s.p < s.son && (*s.p == '.' || *s.p == '/');
    if (nokta2)
        ++s.p;
    const int yil = iki(s.p, s.son, 4);
    if (!nokta1 || !nokta2 || !QDate::isValid(yil, ay, gun) || yil < 1000) {
        sqlite3_result_null(ctx);
        return;
    }
    sqlite3_result_int64(ctx, sqlite3_int64(yil) * 10000 + ay * 100 + gun);
}

// The weight of each ASCII character, worked out once: indexes compare
// codes and upper-case texts millions of times.
struct AsciiAgirliklari
{
    char32_t agirlik[128];
    AsciiAgirliklari()
    {
        for (char32_t c = 0; c < 128; ++c)
            agirlik[c] = siraAgirligi(SqlIslevleri::TurkceKucuk(c));
    }
};

int trKarsilastir(void*, int n1, const void* a, int n2, const void* b)
{
    static const AsciiAgirliklari ascii;
    const auto* pa = static_cast<const unsigned char*>(a);
    const auto* pb = static_cast<const unsigned char*>(b);
    const auto* sonA = pa + n1;
    const auto* sonB = pb + n2;
    // While both sides are ASCII, byte by byte; the rest the long way.
    for (; pa < sonA && pb < sonB && *pa < 0x80 && *pb < 0x80; ++pa, ++pb) {
        if (*pa == *pb)
            continue;
        const char32_t x = ascii.agirlik[*pa];
        const char32_t y = ascii.agirlik[*pb];
        if (x != y)
            return x < y ? -1 : 1;
    }
    return karsilastir(Utf8Okuyucu{pa, sonA}, Utf8Okuyucu{pb, sonB});
}

sqlite3* tutamac(const QSqlDatabase& db)
{
    const QVariant v = db.driver()->handle();
    if (!v.isValid() || qstrcmp(v.typeName(), "sqlite3*") != 0)
        throw VeriHatasi(QStringLiteral("Veri tabanı sürücüsü SQLite değil."));
    return *static_cast<sqlite3* const*>(v.constData());
}

// Our functions live in the SQLite we link; the driver must use the same one.
void surumDenetle(const QSqlDatabase& db)
{
    static bool denetlendi = false;
    if (denetlendi)
        return;
    QSqlQuery sorgu(db);
    if (!sorgu.exec(QStringLiteral("select sqlite_version()")) || !sorgu.next())
        throw VeriHatasi(QStringLiteral("SQLite sürümü okunamadı."));
    const QString surucu = sorgu.value(0).toString();
    const QString bizim = QString::fromLatin1(sqlite3_libversion());
    if (surucu != bizim)
        throw VeriHatasi(QStringLiteral("Qt'nin SQLite sürücüsü (%1) programın SQLite kitaplığı (%2) ile aynı "
                                        "değil; program bu kurulumla çalışamaz.")
                             .arg(surucu, bizim));
    denetlendi = true;
}

}

char32_t SqlIslevleri::TurkceKucuk(char32_t c)
{
    if (c < 0x80) {
        if (c == U'I')
            return U'ı';
        return (c >= U'A' && c <= U'Z') ? c + 32 : c;
    }
    if (c == U'İ')
        return U'i';
    return QChar::toLower(c);
}

int SqlIslevleri::TurkceKarsilastir(QStringView a, QStringView b)
{
    return karsilastir(okuyucu(a), okuyucu(b));
}

bool SqlIslevleri::TurkceBenzer(QStringView metin, QStringView kalip)
{
    return benzer(okuyucu(metin), okuyucu(kalip), 0);
}

qint64 SqlIslevleri::TarihSayisi(const QDate& tarih)
{
    return qint64(tarih.year()) * 10000 + tarih.month() * 100 + tarih.day();
}

void SqlIslevleri::Kaydet(const QSqlDatabase& db)
{
    surumDenetle(db);
    sqlite3* h = tutamac(db);
    struct Islev
    {
        const char* ad;
        int argc;
        void (*fn)(sqlite3_context*, int, sqlite3_value**);
    };
    static constexpr Islev islevler[] = {
        {"Mid", 2, mid},   {"Mid", 3, mid},           {"val", 1, val},   {"Len", 1, len},
        {"Trim", 1, trim}, {"IsNull", 1, isNull},     {"like", 2, like}, {"like", 3, like},
        {"TarihSayi", 1, tarihSayi},
    };
    for (const Islev& islev : islevler) {
        const int rc = sqlite3_create_function_v2(h, islev.ad, islev.argc, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                                  nullptr, islev.fn, nullptr, nullptr, nullptr);
        if (rc != SQLITE_OK)
            throw VeriHatasi(QStringLiteral("SQL işlevi kaydedilemedi: %1").arg(QString::fromLatin1(islev.ad)));
    }
    if (sqlite3_create_collation_v2(h, "TR", SQLITE_UTF8, nullptr, trKarsilastir, nullptr) != SQLITE_OK)
        throw VeriHatasi(QStringLiteral("Türkçe sıralama kaydedilemedi."));
}
