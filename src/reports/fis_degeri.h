#pragma once

#include "val_oku.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

// A column of a FIS line as the engine hands it, for the reports that read
// the lines straight from a statement (SatirOkuyucu). The statement is used
// on one thread only.

// The value's bytes, as text or blob.
inline std::string_view DegerBaytlari(sqlite3_value* v)
{
    const auto* p = static_cast<const char*>(sqlite3_value_type(v) == SQLITE_BLOB ? sqlite3_value_blob(v)
                                                                                   : sqlite3_value_text(v));
    return {p ? p : "", std::size_t(sqlite3_value_bytes(v))};
}

// Val(VirgulNokta(value as text)) on the engine's value, without the text:
// a whole number and a real are what their text reads back as.
inline double DegerSayisi(sqlite3_value* v)
{
    switch (sqlite3_value_type(v)) {
    case SQLITE_NULL:
        return 0;
    case SQLITE_INTEGER:
        return double(sqlite3_value_int64(v));
    case SQLITE_FLOAT: {
        // "inf" reads as 0.
        const double d = sqlite3_value_double(v);
        return std::isfinite(d) ? d : 0.0;
    }
    default: {
        const std::string_view b = DegerBaytlari(v);
        if (b.find(',') == std::string_view::npos)
            return ValOku(b.data(), b.data() + b.size());
        std::string metin(b);
        std::replace(metin.begin(), metin.end(), ',', '.');
        return ValOku(metin.data(), metin.data() + metin.size());
    }
    }
}

// FCinss "D": the line was marked by a write-off.
inline bool DusumSatiri(sqlite3_value* fcinss)
{
    const int tur = sqlite3_value_type(fcinss);
    return (tur == SQLITE_TEXT || tur == SQLITE_BLOB) && DegerBaytlari(fcinss) == "D";
}
