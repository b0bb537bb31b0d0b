#pragma once

class Menu;

// Gives the menu an opener for every screen the program has.
void EkranlariTanimla(Menu& menu);
