#pragma once

// What a source sees of the signal's headers, whatever it has made of Qt's keywords. Defined once
// with the macros of qobjectdefs.h alive, once without.
int callsWithKeywordsAlive();
int callsWithKeywordsDead();
