#pragma once

#include <QString>

// The data files of the program, by their system names.
enum class Dosya { Genel, Ayniyat, HesapKod, Okul, Sirket };

inline constexpr Dosya VeriDosyalari[] = {Dosya::Genel, Dosya::Ayniyat, Dosya::HesapKod, Dosya::Okul,
                                          Dosya::Sirket};

QString DosyaAdi(Dosya dosya);
