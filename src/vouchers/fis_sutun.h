#pragma once

// The columns of the voucher grid, counted from 0 as the grid counts them.
// Most hold a field of the stored line by its name; the class name is only
// looked up, and the last two are spare: the class screen leaves its VAT
// rate in the first of them.
namespace FisSutun {

enum Sutun : int {
    Sira,
    HesapKod,
    MalzAdi,
    Ozellik,
    Birimi,
    Miktar,
    BirimFiyat,
    BelgeTarih,
    Unite,
    IslemTur,
    Cikan,
    KimeVerildigi,
    AmbarNo,
    KDV,
    OzelKod,
    SinifKDV,
    Yedek,
    Sayi
};

}
