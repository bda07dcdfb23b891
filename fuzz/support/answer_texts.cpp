#include "fuzz/support/answer_texts.h"

namespace quor::fuzz {

namespace {

constexpr const wchar_t* kNumbers[] = {
    L"0",        L"1",       L"-1",    L"0.5",         L"2.5",        L"10",     L"11",        L"29",
    L"45",       L"46",      L"160",   L"160.01",      L"255",        L"256",    L"512",       L"1024",
    L"1025",     L"1500",    L"2700",  L"999",         L"20001",      L"32767",  L"32768",     L"65536",
    L"1000000",  L"1000001", L"1e7",   L"10000001",    L"1e308",      L"-1e308", L"1e309",     L"4.9e-324",
    L"1e-320",   L"-0",      L"1/2",   L"5-1/2",       L"1'2-1/2\"",  L"1/0",    L"1.5E+01",   L"12d30'10\"",
    L"1.5r",     L"100g",    L"N45dE", L"99999999999", L"2147483648", L"nan",    L"inf",       L"0x10",
    L"1e",       L".",       L"1,5",   L"12ab",        L"１２",       L"-2e2",   L"0.3333333", L"18849.5559",
    L"1.7e+308", L"1e154",   L"1e155", L"1e-155",      L"359.999999", L"720",
};

constexpr const wchar_t* kPoints[] = {
    L"0,0",          L"0,0,0",        L"1,2,3",       L"@",
    L"@10,0",        L"@100<45",      L"*1,2,3",      L"10<45",
    L"@0,0,0",       L"0,0,-10",      L"0,-0.01,1",   L"1,1,1",
    L"1,2",          L"1,2,3,4",      L"1e300,1e300", L"1e-300,0",
    L"-1e308,1e308", L"1e309,0",      L"255,128,0",   L"0,0,300",
    L"120,100,50",   L"0,0,0.000001", L"1,,2",        L",",
    L"1;2",          L"@<",           L"*",           L"1e-9,0,0",
    L"1'2\",3/4",    L"-5,-5,-5",     L"1e8,1e8,1e8", L"0.1,0.2,0.3",
    L"1.7e308,0,0",  L"256,0,0",      L"*@1,1",
};

constexpr const wchar_t* kNames[] = {
    L"Lamp",
    L"lamp",
    L"吊灯 一号",
    L"点光源1",
    L"点光源2",
    L" Lamp",
    L"a,b",
    L"Lamp/1",
    L"%s%n%d",
    L"\\U+4E00",
    L"Web Colors",
    L"RebeccaPurple",
    L"Layout1",
    L"0",
    L"Neutral",
    L"ADSK_SYSTEM_LIGHTS",
    L"*ADSK_SYSTEM_LIGHTS",
    L"*",
    L"?",
    L"红",
    L"eXit",
    L"D65",
    L"荧光灯",
    L"lightunits*",
    L"\U0001F4A1",
    L"e\u0301",
    L"ﬀ",
    L"Lamps",
    L"聚光灯1",
    L"光域灯光1",
    L"平行光1",
    L"ZZZ$0$Lamp",
    L"#*",
    L"yes",
    L"Standard",
    L"Model",
};

constexpr const wchar_t* kGarbage[] = {
    L"%s%s%n", L"\x1b[2J", L"\x9b", L"\x2028", L"\x202e", L"_",    L"'",    L".",       L"_.'",    L"''",
    L"((",     L"\"",      L";",    L"^",      L"^C^C",   L"\t",   L" ",    L"  a  b ", L"\xfffe", L"\U0010ffff",
    L"__x",    L".._",     L"^C1",  L"x^C",    L"\x7f",   L"\xad", L"\xa0", L"\x3000",  L"-",      L"+",
    L"\\",     L"<>",      L"|&",   L"{}",     L"$(x)",   L"`",    L"[X]",  L"*.*",
};

constexpr const wchar_t* kFiles[] = {
    L"new.dxf", L"new",      L"table.csv", L"table.json", L"nothere.ies", L"~",     L".",
    L"..",      L"lamp.IES", L"light",     L"other.dxf",  L"new.bak",     L"*.dxf", L"~/",
};

constexpr const wchar_t* kSelections[] = {
    L"ALL", L"L", L"P", L"W", L"C", L"R", L"A", L"U", L"", L"X", L"0,0", L"ALL ", L"L ", L"_ALL", L"F", L"#1F",
};

constexpr const wchar_t* kTransparent[] = {
    L"'LIST",       L"'HELP",   L"'SETVAR LUNITS 3", L"'LUNITS 4", L"'COLORBOOKS", L"'_AUNITS", L"'HELP LIGHT",
    L"'POINTLIGHT", L"'UNDO 2", L"'LIGHTINGUNITS 0", L"'U",        L"'SETVAR ?",   L"'.LINE",   L"'LIGHTINGUNITS 1",
    L"'SETVAR",     L"'NEW",    L"'TILEMODE 0",      L"'CLOSE",    L"'QUIT",
};

constexpr const wchar_t* kSettings[] = {
    L"LIGHTINGUNITS 0",
    L"LIGHTINGUNITS 1",
    L"LIGHTINGUNITS 2",
    L"AUNITS 0",
    L"AUNITS 1",
    L"AUNITS 2",
    L"AUNITS 3",
    L"AUNITS 4",
    L"LUNITS 1",
    L"LUNITS 2",
    L"LUNITS 3",
    L"LUNITS 4",
    L"LUNITS 5",
    L"LUPREC 0",
    L"LUPREC 8",
    L"AUPREC 8",
    L"TILEMODE 0",
    L"TILEMODE 1",
    L"CVPORT 1",
    L"CVPORT 2",
    L"INSUNITS 6",
    L"INSUNITS 0",
    L"INSUNITS 1",
    L"ANGBASE 90",
    L"ANGDIR 1",
    L"UNITMODE 1",
    L"DEFAULTLIGHTING 0",
    L"DEFAULTLIGHTING 1",
    L"LANGUAGE en",
    L"UCS W",
    L"UCS X 45",
    L"UCS 3P 0,0,0 0,1,0 -1,0,0",
    L"UCS 10,10,10",
    L"UCS P",
    L"UCS Z 1e-8",
    L"LAYER M Lamps ",
    L"CLAYER 0",
    L"ELEVATION 3",
    L"CMDECHO 0",
    L"SUPPORTPATH .",
    L"LASTPOINT 1e300,1e300",
    L"UCS 1e300,0,0",
    L"LTSCALE 1e-99",
    L"LAYOUT S Layout1",
    L"MODEL",
};

constexpr const wchar_t* kOptions[] = {
    L"N Lamp",
    L"I 0.75",
    L"S F",
    L"S N",
    L"P I 2500 X",
    L"P I F 12345 X",
    L"P I I 500 X",
    L"P I I D 25 X",
    L"P C K 2700 X",
    L"P C H X",
    L"P C ? * S X",
    L"W O",
    L"W S",
    L"W F 512 4",
    L"W F 4096 10",
    L"W A S R 40 25 X",
    L"W A S C 15 45 X",
    L"W A S L 3 X",
    L"W A S D 2 A 64 V Y X",
    L"W A A 1025 X",
    L"A L 5 E 500 T S U N X",
    L"A T I X",
    L"A U N X",
    L"A E 1e300 X",
    L"C I 30",
    L"C 255,128,0",
    L"C H 120,100,50",
    L"C I red",
    L"H 30",
    L"F 60",
    L"F 30",
    L"H 160",
    L"F 160",
    L"B F",
    L"B X 30 Y 370 Z 5 E",
    L"B E",
    L"filterColor 1,2,3",
    L"_Color 1,2,3",
    L"X",
    L"C B",
};

constexpr const wchar_t* kCommands[] = {
    L"POINTLIGHT 1,2,3",
    L"SPOTLIGHT 0,0,5 0,0,0",
    L"TARGETPOINT 1,2,3 4,5,6",
    L"FREESPOT 1,1,1",
    L"WEBLIGHT 0,0,3 0,0,0",
    L"FREEWEB 5,5,5",
    L"DISTANTLIGHT 0,0,0 1,1,1",
    L"DISTANTLIGHT V 0,-0.01,1",
    L"LIGHT P 1,1,1",
    L"LIGHT S 0,0,1 0,0,0",
    L"LIGHT W 1,1,1 0,0,0",
    L"LIGHT T 1,1,1 0,0,0",
    L"LIGHT F 1,1,1",
    L"LIGHT B 1,1,1",
    L"LIGHT D V 1,1,1",
    L"LINE 0,0 1,1 2,0 ",
    L"3DFACE 0,0 1,0 1,1 0,1 ",
    L"LIST ALL ",
    L"ERASE L ",
    L"ERASE ALL ",
    L"U",
    L"REDO",
    L"UNDO 2",
    L"UNDO M",
    L"UNDO B",
    L"SELECT ALL ",
    L"NEW",
    L"SAVEAS new.dxf",
    L"SAVE",
    L"CLOSE N",
    L"OPEN new.dxf",
    L"DOCUMENTS",
    L"POINTLIGHT 1,2,3 X",
    L"FREEWEB 5,5,5 X",
    L"FREESPOT 1,1,1 X",
    L"LAYER M Lamps ",
};

} // namespace

Texts numberTexts() { return kNumbers; }
Texts pointTexts() { return kPoints; }
Texts nameTexts() { return kNames; }
Texts garbageTexts() { return kGarbage; }
Texts fileTexts() { return kFiles; }
Texts selectionTexts() { return kSelections; }
Texts transparentTexts() { return kTransparent; }
Texts settingTexts() { return kSettings; }
Texts optionTexts() { return kOptions; }
Texts commandTexts() { return kCommands; }

} // namespace quor::fuzz
