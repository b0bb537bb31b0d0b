#pragma once

#include <charconv>

// The Basic Val on a run of characters (UTF-8 bytes or UTF-16 units): blanks,
// tabs and line ends are skipped wherever they stand; a sign, digits, one
// decimal point and an exponent are read; the first other character ends the
// number. An empty or unreadable text gives 0.
template <typename Karakter>
double ValOku(const Karakter* p, const Karakter* son)
{
    char tampon[128];
    int n = 0;
    auto bosluk = [](Karakter c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    auto rakam = [](Karakter c) { return c >= '0' && c <= '9'; };
    auto ekle = [&](char c) {
        if (n < int(sizeof tampon) - 1)
            tampon[n++] = c;
    };
    auto sonraki = [&]() {
        while (p < son && bosluk(*p))
            ++p;
        return p < son ? *p : Karakter(0);
    };

    Karakter c = sonraki();
    if (c == '-' || c == '+') {
        if (c == '-')
            ekle('-');
        ++p;
        c = sonraki();
    }
    bool rakamVar = false;
    while (rakam(c)) {
        ekle(char(c));
        rakamVar = true;
        ++p;
        c = sonraki();
    }
    if (c == '.') {
        ekle('.');
        ++p;
        c = sonraki();
        while (rakam(c)) {
            ekle(char(c));
            rakamVar = true;
            ++p;
            c = sonraki();
        }
    }
    if (!rakamVar)
        return 0.0;
    if (c == 'e' || c == 'E' || c == 'd' || c == 'D') {
        const Karakter* geri = p;
        const int geriN = n;
        ekle('e');
        ++p;
        c = sonraki();
        if (c == '-' || c == '+') {
            ekle(char(c));
            ++p;
            c = sonraki();
        }
        bool usVar = false;
        while (rakam(c)) {
            ekle(char(c));
            usVar = true;
            ++p;
            c = sonraki();
        }
        if (!usVar) {
            p = geri;
            n = geriN;
        }
    }
    double sonuc = 0.0;
    std::from_chars(tampon, tampon + n, sonuc);
    return sonuc;
}
