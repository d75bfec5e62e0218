-- The tables of a show. Field types are the ones that the record sets convert by:
-- INTEGER (whole number), BOOLEAN (-1 and 0), CURRENCY (count of ten-thousandths),
-- DATETIME (ISO 8601 text) and TEXT.
-- An ID is never given twice, so that rows left behind by a deletion can't change their meaning.

CREATE TABLE Barvy (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Nazev TEXT
);

CREATE TABLE Kruhy (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Nazev TEXT,
    JmenoRozhodciho TEXT
);

CREATE TABLE Plemena (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Nazev TEXT,
    NazevOrig TEXT,
    FCI INTEGER DEFAULT 0,
    Parent INTEGER DEFAULT 0,
    Vlastni BOOLEAN DEFAULT 0,
    Pouzivat BOOLEAN DEFAULT 0,
    ID_Kruhu INTEGER DEFAULT 0
);

CREATE TABLE Majitele (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Jmeno TEXT,
    Prijmeni TEXT,
    Ulice TEXT,
    Mesto TEXT,
    PSC INTEGER DEFAULT 0,
    Telefon TEXT,
    Email TEXT,
    Stat TEXT
);

CREATE TABLE Psi (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Jmeno TEXT,
    ChovnaStanice TEXT,
    Cislo INTEGER,
    PlemenoID INTEGER DEFAULT 0,
    MajitelID INTEGER DEFAULT 0,
    BarvaID INTEGER DEFAULT 0,
    PohlaviPes BOOLEAN DEFAULT 0,
    DatumNar DATETIME,
    Trida INTEGER DEFAULT 0,
    Otec TEXT,
    Matka TEXT,
    PK TEXT,
    Poznamka TEXT,
    Chovatel TEXT,
    PrvniUzaverka BOOLEAN DEFAULT 0,
    PrvniPes BOOLEAN DEFAULT 0
);

CREATE TABLE Vystavy (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Nazev TEXT,
    Uzaverka1 DATETIME,
    Uzaverka2 DATETIME,
    PoplatkyIClass1D1 CURRENCY, PoplatkyIClass1D2 CURRENCY,
    PoplatkyIClass2D1 CURRENCY, PoplatkyIClass2D2 CURRENCY,
    PoplatkyIClass3D1 CURRENCY, PoplatkyIClass3D2 CURRENCY,
    PoplatkyIClass4D1 CURRENCY, PoplatkyIClass4D2 CURRENCY,
    PoplatkyIClass5D1 CURRENCY, PoplatkyIClass5D2 CURRENCY,
    PoplatkyIClass6D1 CURRENCY, PoplatkyIClass6D2 CURRENCY,
    PoplatkyIClass7D1 CURRENCY, PoplatkyIClass7D2 CURRENCY,
    PoplatkyIClass8D1 CURRENCY, PoplatkyIClass8D2 CURRENCY,
    PoplatkyIClass9D1 CURRENCY, PoplatkyIClass9D2 CURRENCY,
    PoplatkyIIClass1D1 CURRENCY, PoplatkyIIClass1D2 CURRENCY,
    PoplatkyIIClass2D1 CURRENCY, PoplatkyIIClass2D2 CURRENCY,
    PoplatkyIIClass3D1 CURRENCY, PoplatkyIIClass3D2 CURRENCY,
    PoplatkyIIClass4D1 CURRENCY, PoplatkyIIClass4D2 CURRENCY,
    PoplatkyIIClass5D1 CURRENCY, PoplatkyIIClass5D2 CURRENCY,
    PoplatkyIIClass6D1 CURRENCY, PoplatkyIIClass6D2 CURRENCY,
    PoplatkyIIClass7D1 CURRENCY, PoplatkyIIClass7D2 CURRENCY,
    PoplatkyIIClass8D1 CURRENCY, PoplatkyIIClass8D2 CURRENCY,
    PoplatkyIIClass9D1 CURRENCY, PoplatkyIIClass9D2 CURRENCY
);

CREATE TABLE PsiVeVystavach (
    PesID INTEGER,
    VystavaID INTEGER
);

CREATE TABLE Souteze (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Nazev TEXT,
    Cena CURRENCY,
    Parova BOOLEAN DEFAULT 0,
    NazevPar1 TEXT,
    NazevPar2 TEXT
);

CREATE TABLE Vazby_Souteze (
    ID_Psa INTEGER,
    ID_Souteze INTEGER
);

CREATE TABLE Oceneni (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Nazev TEXT
);

CREATE TABLE PsiOceneni (
    IDPsa INTEGER,
    IDOceneni INTEGER
);

CREATE TABLE Meny (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    Nazev TEXT,
    Zkratka TEXT,
    Kurs CURRENCY,
    Hlavni BOOLEAN DEFAULT 0
);

CREATE TABLE Uhrady (
    ID INTEGER PRIMARY KEY AUTOINCREMENT,
    ID_Psa INTEGER,
    Datum DATETIME,
    Castka CURRENCY,
    Mena INTEGER,
    Kurs CURRENCY,
    Kc CURRENCY,
    Uhrada INTEGER,
    Ucet TEXT,
    Printed BOOLEAN DEFAULT 0
);

CREATE TABLE Ostatni (
    DatumVystavy DATETIME
);

CREATE TABLE Vazby_Trida (
    PlemenoID INTEGER,
    Trida INTEGER
);

-- One index per reference. None of them may decide the order of rows: every statement asks for it.
CREATE INDEX Plemena_ID_Kruhu ON Plemena (ID_Kruhu);
CREATE INDEX Plemena_Parent ON Plemena (Parent);
CREATE INDEX Psi_PlemenoID ON Psi (PlemenoID);
CREATE INDEX Psi_MajitelID ON Psi (MajitelID);
CREATE INDEX Psi_BarvaID ON Psi (BarvaID);
CREATE INDEX PsiVeVystavach_PesID ON PsiVeVystavach (PesID);
CREATE INDEX PsiVeVystavach_VystavaID ON PsiVeVystavach (VystavaID);
CREATE INDEX Vazby_Souteze_ID_Psa ON Vazby_Souteze (ID_Psa);
CREATE INDEX Vazby_Souteze_ID_Souteze ON Vazby_Souteze (ID_Souteze);
CREATE INDEX PsiOceneni_IDPsa ON PsiOceneni (IDPsa);
CREATE INDEX PsiOceneni_IDOceneni ON PsiOceneni (IDOceneni);
CREATE INDEX Uhrady_ID_Psa ON Uhrady (ID_Psa);
CREATE INDEX Uhrady_Mena ON Uhrady (Mena);
