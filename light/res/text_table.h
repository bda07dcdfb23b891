// Every text of the module: its number in the resource modules, which of them holds it, and the text that is built in.
#pragma once

#include <array>
#include <bit>
#include <type_traits>

namespace quor::light {

// The resource module of a text: the host's command library (prompts, messages, palette) or the keyword resource
// module (local names of commands, keyword lists).
enum class TextSource : unsigned char { CommandLibrary, Keywords };

struct Text {
    unsigned number;
    TextSource source;
    const wchar_t* builtIn;
};

// One line each, in number order. Prompts begin with a line break. A keyword list holds the local words, then the
// global ones, the first of them with "_" in front; capital letters mark what is typed for short. The built-in local
// name of a command is its global name.
struct TextTable {
    static constexpr TextSource lib = TextSource::CommandLibrary;
    static constexpr TextSource words = TextSource::Keywords;

    // clang-format off
    Text modelSpaceOnly{6801, lib, L"\n** 命令仅在模型空间中有效 **"};
    Text kindPoint{6802, lib, L"<点光源>"};
    Text kindSpot{6803, lib, L"<聚光灯>"};
    Text kindWeb{6804, lib, L"<光域网>"};
    Text kindTargetPoint{6805, lib, L"<目标点光源>"};
    Text kindFreeSpot{6806, lib, L"<自由聚光灯>"};
    Text kindFreeWeb{6807, lib, L"<自由光域>"};
    Text kindDistant{6808, lib, L"<平行光>"};
    Text targetPrompt{6813, lib, L"\n指定目标位置 <0,0,-10>: "};
    Text spotTargetOnSource{6814, lib, L"**聚光灯的光源和目标不能相同。**"};
    Text namePrompt{6816, lib, L"\n输入光源名称 <"};
    Text nameHasInvalidCharacters{6817, lib, L"名称中的字符无效。\n以下字符在光源名称中无效:\n             <>/\\\"':;?*|,=`"};
    Text nameIsTaken{6818, lib, L"\n此名称不是唯一名称.请使用其他名称."};
    Text nameIsInvalid{6819, lib, L"是无效光源名称。"};
    Text statusPromptOn{6820, lib, L"\n输入状态 [开(N)/关(F)] <开>: "};
    Text statusPromptOff{6821, lib, L"\n输入状态 [开(N)/关(F)] <关>: "};
    Text photometryPrompt{6822, lib, L"\n输入要更改的光度控制选项 [强度(I)/颜色(C)/退出(X)] <强度>: "};
    Text off{6823, lib, L"关"};
    Text distantKindWord{6824, lib, L"平行光"};
    Text shadowSoftMapped{6825, lib, L"已映射柔和"};
    Text shadowSoftSampled{6826, lib, L"已采样柔和"};
    Text shadowSharp{6827, lib, L"锐化"};
    Text pointOptions{6828, lib, L"\n输入要更改的选项 [名称(N)/强度(I)/状态(S)/阴影(W)/衰减(A)/颜色(C)/退出(X)] <退出>: "};
    Text pointPhotometricOptions{6829, lib, L"\n输入要更改的选项 [名称(N)/强度因子(I)/状态(S)/光度(P)/阴影(W)/衰减(A)/过滤颜色(C)/退出(X)] <退出>: "};
    Text spotOptions{6830, lib, L"\n输入要更改的选项 [名称(N)/强度(I)/状态(S)/聚光角(H)/照射角(F)/阴影(W)/衰减(A)/颜色(C)/退出(X)] <退出>: "};
    Text trueColorInvalid{6831, lib, L"颜色无效。键入三个逗号分隔值，范围为从 0 到 255。"};
    Text hslPrompt{6832, lib, L"\n输入 HSL 颜色 (H,S,L) : "};
    Text hslInvalid{6833, lib, L"需要有效 HSL 值。"};
    Text spotPhotometricOptions{6834, lib, L"\n输入要更改的选项 [名称(N)/强度因子(I)/状态(S)/光度(P)/聚光角(H)/照射角(F)/阴影(W)/衰减(A)/过滤颜色(C)/退出(X)] <退出>: "};
    Text angleOutOfRange{6835, lib, L"需要介于 0.00 和 160.00 之间的角度。"};
    Text webOptions{6836, lib, L"\n输入要更改的选项 [名称(N)/强度因子(I)/状态(S)/光度(P)/光域网(B)/阴影(W)/过滤颜色(C)/退出(X)] <退出>: "};
    Text notAPresetColor{6837, lib, L" 不是预设颜色。"};
    Text attenuationNone{6838, lib, L"无"};
    Text attenuationInverseLinear{6839, lib, L"线性反比"};
    Text attenuationInverseSquare{6840, lib, L"平方反比"};
    Text on{6841, lib, L"开"};
    Text indexColorPrompt{6842, lib, L"\n输入颜色名称或编号 (1-255): "};
    Text webNamePrefix{6843, lib, L"光域灯光"};
    Text indexColorInvalid{6844, lib, L"\n需要有效索引值。"};
    Text targetPointPhotometricOptions{6845, lib, L"\n输入要更改的选项 [名称(N)/强度因子(I)/状态(S)/光度(P)/阴影(W)/衰减(A)/过滤颜色(C)/退出(X)] <退出>:"};
    Text mapSizeInvalid{6846, lib, L"需要以下数字之一 (64、128、256、512、1024、2048 或 4096)。"};
    Text softnessInvalid{6847, lib, L"\n需要介于 1 和 10 之间的整数。"};
    Text notWithGenericUnits{6848, lib, L"该命令不允许在 LIGHTINGUNITS = 0 时使用\n"};
    Text targetPointOptions{6849, lib, L"\n输入要更改的选项 [名称(N)/强度(I)/状态(S)/阴影(W)/衰减(A)/颜色(C)/退出(X)] <退出>:"};
    Text shapeVisiblePromptNo{6850, lib, L"\n输入形可见性 [是(Y)/否(N)] <否>: "};
    Text shapeVisiblePromptYes{6851, lib, L"\n输入形可见性 [是(Y)/否(N)] <是>: "};
    Text webMenuPrompt{6852, lib, L"\n输入要更改的光域网选项 [文件(F)/X/Y/Z/退出(E)] <退出>: "};
    Text freeSpotOptions{6853, lib, L"\n输入要更改的选项 [名称(N)/强度(I)/状态(S)/聚光角(H)/照射角(F)/阴影(W)/衰减(A)/颜色(C)/退出(X)] <退出>: "};
    Text freeSpotPhotometricOptions{6854, lib, L"\n输入要更改的选项 [名称(N)/强度因子(I)/状态(S)/光度(P)/聚光角(H)/照射角(F)/阴影(W)/衰减(A)/过滤颜色(C)/退出(X)] <退出>: "};
    Text fileNotFound{6855, lib, L"\n无法找到文件 %s。"};
    Text fileNameInvalid{6856, lib, L"\n无效的文件名 “%s”。"};
    Text colorBookPrompt{6857, lib, L"\n输入配色系统名称: "};
    Text colorBookNotFound{6858, lib, L"\n未找到配色系统。"};
    Text bookColorPrompt{6859, lib, L"\n输入颜色名称: "};
    Text bookColorNotFound{6860, lib, L"\n未找到颜色。"};
    Text mustBePositive{6861, lib, L"\n值必须为 正。"};
    Text freeSpotNamePrefix{6862, lib, L"聚光灯"};
    Text intensityPrompt{6863, lib, L"\n输入强度 (0.00 - 最大浮点数) <%s>: "};
    Text distantShadowPrompt{6864, lib, L"\n输入 [关(O)/锐化(S)/已映射柔和(F)] <%s>: "};
    Text shadowPrompt{6865, lib, L"\n输入 [关(O)/锐化(S)/已映射柔和(F)/已采样柔和(A)] <%s>: "};
    Text attenuationMenuDefault{6866, lib, L"退出"};
    Text attenuationMenuPrompt{6867, lib, L"\n输入要更改的选项 [衰减类型(T)/使用界限(U)/衰减起始界限(L)/衰减结束界限(E)/退出(X)] <%s>: "};
    Text startLimitPrompt{6868, lib, L"\n指定起始界限偏移 <%s>: "};
    Text endLimitPrompt{6869, lib, L"\n指定结束界限偏移 <%s>: "};
    Text trueColorPrompt{6870, lib, L"\n输入真彩色 (R,G,B) 或输入选项 [索引颜色(I)/HSL(H)/配色系统(B)] <%s>: "};
    Text hslPromptFromIndex{6871, lib, L"\n输入 HSL 颜色 (H,S,L) <%s>: "};
    Text hslPromptFromRgb{6872, lib, L"\n输入 HSL 颜色 (H,S,L) <%d,%d,%d>: "};
    Text lampFluorescent{6873, lib, L"荧光灯(F)"};
    Text lampCoolWhite{6874, lib, L"冷白光(C)"};
    Text lampWhiteFluorescent{6875, lib, L"白荧光(W)"};
    Text lampDaylightFluorescent{6876, lib, L"日光荧光灯(T)"};
    Text lampIncandescent{6877, lib, L"白炽灯(I)"};
    Text lampXenon{6878, lib, L"氙灯(X)"};
    Text lampHalogen{6879, lib, L"卤素灯(H)"};
    Text lampQuartz{6880, lib, L"石英灯(Q)"};
    Text lampMetalHalide{6881, lib, L"金属卤素(M)"};
    Text lampMercury{6882, lib, L"水银灯(E)"};
    Text lampPhosphorMercury{6883, lib, L"磷光水银灯(P)"};
    Text lampHighPressureSodium{6884, lib, L"高压钠灯(S)"};
    Text lampLowPressureSodium{6885, lib, L"低压钠灯(L)"};
    Text lampColorPrompt{6886, lib, L"\n输入颜色名称或输入选项 [?/开尔文(K)] <"};
    Text kelvinPrompt{6887, lib, L"\n输入开尔文 <%s>: "};
    Text lampListPrompt{6888, lib, L"\n输入要列出的颜色名称 <*> :"};
    Text lampListHeading{6889, lib, L"\n标准颜色:"};
    Text lampListBody{6890, lib, L"\n\"D65(D)\"\n\"荧光灯(F)\"\n\"冷白光(C)\"\n\"白荧光(W)\"\n\"日光荧光灯(T)\"\n\"白炽灯(I)\"\n\"氙灯(X)\"\n\"卤素灯(H)\"\n\"石英灯(Q)\"\n\"金属卤素(M)\"\n\"水银灯(E)\"\n\"磷光水银灯(P)\"\n\"高压钠灯(S)\"\t\n\"低压钠灯(L)\""};
    Text candelaPrompt{6891, lib, L"\n输入强度 (Cd) 或输入选项 [光通量(F)/照度(I)] <%s>: "};
    Text attenuationTypePrompt{6892, lib, L"\n输入衰减类型 [无(N)/线性反比(I)/平方反比(S)] <%s>: "};
    Text useLimitsPrompt{6893, lib, L"\n界限 [开(N)/关(F)] <%s>: "};
    Text mapSizePrompt{6894, lib, L"\n输入贴图尺寸 [64/128/256/512/1024/2048/4096] <%d>: "};
    Text softnessPrompt{6895, lib, L"\n输入柔和度 (1-10) <%d>: "};
    Text sampledMenuDefault{6896, lib, L"退出"};
    Text sampledMenuPrompt{6897, lib, L"\n输入要更改的选项 [形(S)/样例(A)/可见(V)/退出(X)] <%s>:"};
    Text freeSpotKindWord{6898, lib, L"自由聚光灯"};
    Text spotKindWord{6899, lib, L"聚光灯"};
    Text spotShapePrompt{6900, lib, L"\n输入形 [圆盘形(D)/矩形(R)] <%s>:"};
    Text shapePrompt{6901, lib, L"\n输入形 [直线形(L)/圆盘形(D)/矩形(R)/球形(S)/圆柱形(C)] <%s>: "};
    Text samplesPrompt{6902, lib, L"\n输入阴影采样 <%d>: "};
    Text lengthPrompt{6903, lib, L"\n输入长度 <%s>: "};
    Text widthPrompt{6904, lib, L"\n输入宽度 <%s>: "};
    Text radiusPrompt{6905, lib, L"\n输入半径 <%s>: "};
    Text fluxPrompt{6906, lib, L"\n输入光通量 (Lm) <%s>: "};
    Text illuminancePromptFootCandle{6907, lib, L"\n输入照度 (FC) 或输入选项 [距离(D)] <%s>: "};
    Text illuminancePromptLux{6908, lib, L"\n输入照度 (Lx) 或输入选项 [距离(D)] <%s>: "};
    Text illuminanceDistancePrompt{6909, lib, L"\n输入平行光 <%s>: "};
    Text webFilePrompt{6911, lib, L"\n输入光域网文件 <%s>: "};
    Text webRotationPrompt{6912, lib, L"\n输入光域网 %s 旋转 <%s>: "};
    Text lightingDialogTitle{6913, lib, L"光源 - 视口光源模式"};
    Text lightingDialogQuestion{6914, lib, L"打开默认光源时，无法在视口中显示日光和来自点光源、聚光灯和平行光的光。希望执行什么操作？"};
    Text lightingDialogTurnOff{6915, lib, L"关闭默认光源(建议)"};
    Text lightingDialogKeepOn{6916, lib, L"使默认光源保持打开状态"};
    Text lightingDialogKeepOnExplained{6917, lib, L"添加用户光源时，默认光源将处于打开状态。要查看用户光源的效果，请手动关闭默认光源。"};
    Text lightingDialogAlways{6918, lib, L"始终执行我的当前选择"};
    Text shapeLinear{6919, lib, L"线性"};
    Text shapeRect{6920, lib, L"矩形"};
    Text shapeDisk{6921, lib, L"圆盘形"};
    Text shapeCylinder{6922, lib, L"圆柱体"};
    Text shapeSphere{6923, lib, L"球形"};
    Text red{6924, lib, L"红"};
    Text yellow{6925, lib, L"黄"};
    Text green{6926, lib, L"绿"};
    Text cyan{6927, lib, L"青"};
    Text blue{6928, lib, L"蓝"};
    Text magenta{6929, lib, L"洋红"};
    Text white{6930, lib, L"白"};
    Text lightKindPrompt{6931, lib, L"\n输入光源类型 [点光源(P)/聚光灯(S)/光域网(W)/目标点光源(T)/自由聚光灯(F)/自由光域(B)/平行光(D)] %s: "};
    Text sourcePrompt{6932, lib, L"\n指定源位置 <0,0,0>: "};
    Text webFileDialogCaption{6933, lib, L"选择光域网文件"};
    Text pointNamePrefix{6934, lib, L"点光源"};
    Text hotspotPrompt{6951, lib, L"\n输入聚光角 (0.00-160.00) <%s>: "};
    Text falloffPrompt{6952, lib, L"\n输入照射角 (0.00-160.00) <%s>: "};
    Text spotNamePrefix{6953, lib, L"聚光灯"};
    Text targetPointNamePrefix{6961, lib, L"点光源"};
    Text freeSpotFalloffPrompt{6965, lib, L"\n输入照射角 (0.00-160.00) <%s>: "};
    Text freeSpotHotspotPrompt{6966, lib, L"\nEnter hotspot angle (0.00-160.00) <%s>: "};
    Text distantFromPrompt{6975, lib, L"\n指定光源来向 <0,0,0> 或 [矢量(V)]: "};
    Text distantToPrompt{6976, lib, L"\n指定光源去向 <1,1,1>: "};
    Text distantOptions{6993, lib, L"\n输入要更改的选项 [名称(N)/强度(I)/状态(S)/阴影(W)/颜色(C)/退出(X)] <退出>: "};
    Text distantPhotometricOptions{6994, lib, L"\n输入要更改的选项 [名称(N)/强度因子(I)/状态(S)/光度(P)/阴影(W)/过滤颜色(C)/退出(X)] <退出>: "};
    Text distantNamePrefix{6995, lib, L"平行光"};
    Text distantDialogTitle{6996, lib, L"光源 - 光度控制平行光"};
    Text distantDialogQuestion{6997, lib, L"光源单位是光度控制单位时，使用平行光可能会导致过度曝光。希望执行什么操作？"};
    Text distantDialogForbid{6998, lib, L"光源单位是光度控制单位时,禁用平行光 (建议)"};
    Text distantDialogAllow{6999, lib, L"允许平行光"};
    Text distantDialogAlways{7000, lib, L"始终允许平行光(不建议)"};
    Text distantCandelaPrompt{7001, lib, L"\n输入强度 (Cd) <%s>: "};
    Text distantToOnFrom{7002, lib, L"请输入除“自”位置以外的位置。"};
    Text vectorPrompt{7003, lib, L"\n指定矢量方向 <0.0000,-0.0100,1.0000>: "};
    Text vectorInvalid{7004, lib, L"\n矢量方向无效。"};
    Text closePalette{7501, lib, L"关闭"};
    Text showTips{7502, lib, L"显示提示"};
    Text paletteLabel{7506, lib, L"模型空间中的光源"};
    Text deleteLights{7507, lib, L"删除"};
    Text showProperties{7508, lib, L"特性"};
    Text glyphAutomatic{7509, lib, L"自动"};
    Text glyphOn{7510, lib, L"开"};
    Text glyphOff{7511, lib, L"关"};
    Text showTipsInList{7512, lib, L"显示提示"};
    Text pointLightPicture{7513, lib, L"点光源"};
    Text distantLightPicture{7514, lib, L"平行光"};
    Text spotLightPicture{7515, lib, L"聚光灯"};
    Text webLightPicture{7516, lib, L"光域灯光"};
    Text paletteTipSelect{7517, lib, L"单击列表上的光源以在模型中选择它。使用CTRL键进行多重选择。"};
    Text paletteTipDistant{7518, lib, L"注意：平行光和阳光在模型中不作为界面对象显示。"};
    Text paletteTypeColumn{7519, lib, L""};
    Text paletteNameColumn{7520, lib, L"光源名称"};
    Text paletteTitle{7522, lib, L"模型中的光源"};
    Text yesNoKeywords{10001, words, L"Yes No _Yes No"};
    Text distantFromKeywords{20831, words, L"Vector _Vector"};
    Text distantOptionKeywords{20832, words, L"Name Intensity Status Photometry shadoW Color filterColor eXit _Name Intensity Status Photometry shadoW Color filterColor eXit"};
    Text freeSpotOptionKeywords{25010, words, L"Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor eXit _Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor eXit"};
    Text webOptionKeywords{25011, words, L"Name Intensityfactor Status Photometry weB shadoW filterColor eXit _Name Intensityfactor Status Photometry weB shadoW filterColor eXit"};
    Text lightKindKeywords{25087, words, L"Point Spot Web Targetpoint Freespot freeweB Distant _Point Spot Web Targetpoint Freespot freeweB Distant"};
    Text onOffKeywords{25088, words, L"oN oFf _oN oFf"};
    Text photometryKeywords{25089, words, L"Intensity Color eXit _Intensity Color eXit"};
    Text distantShadowKeywords{25090, words, L"Off Sharp soFtmapped _Off Sharp soFtmapped"};
    Text shadowKeywords{25091, words, L"Off Sharp soFtmapped softsAmpled _Off Sharp soFtmapped softsAmpled"};
    Text attenuationMenuKeywords{25092, words, L"attenuationType Uselimits attenuationstartLimit attenuationEndlimit eXit _attenuationType Uselimits attenuationstartLimit attenuationEndlimit eXit"};
    Text trueColorKeywords{25093, words, L"Index Hsl colorBook _Index Hsl colorBook"};
    Text lampColorKeywords{25094, words, L"Kelvin D65 Fluorescent Coolwhite Whitefluorescent daylightfluorescenT Incandescent Xenon Halogen Quartz Metalhalide mErcury Phosphormercury highpressureSodium Lowpressuresodium _Kelvin D65 Fluorescent Coolwhite Whitefluorescent daylightfluorescenT Incandescent Xenon Halogen Quartz Metalhalide mErcury Phosphormercury highpressureSodium Lowpressuresodium"};
    Text candelaKeywords{25095, words, L"Flux Illuminance _Flux Illuminance"};
    Text attenuationTypeKeywords{25096, words, L"None Inverse Squared _None Inverse Squared"};
    Text indexColorKeywords{25097, words, L"Red Yellow Green Cyan Blue Magenta White _Red Yellow Green Cyan Blue Magenta White"};
    Text sampledMenuKeywords{25098, words, L"Shape sAmples Visible eXit _Shape sAmples Visible eXit"};
    Text spotShapeKeywords{25099, words, L"Disk Rect _Disk Rect"};
    Text shapeKeywords{25100, words, L"Linear Disk Rect Sphere Cylinder _Linear Disk Rect Sphere Cylinder"};
    Text illuminanceKeywords{25101, words, L"Distance _Distance"};
    Text webMenuKeywords{25102, words, L"File X Y Z Exit _File X Y Z Exit"};
    Text pointOptionKeywords{30076, words, L"Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor eXit _Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor eXit"};
    Text spotOptionKeywords{35044, words, L"Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor eXit _Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor eXit"};
    Text targetPointOptionKeywords{35047, words, L"Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor eXit _Name Intensity Status Photometry Hotspot Falloff shadoW Attenuation Color filterColor eXit"};
    Text distantLightCommand{63295, words, L"distantlight"};
    Text pointLightCommand{63301, words, L"POINTLIGHT"};
    Text webLightCommand{63302, words, L"WEBLIGHT"};
    Text freeSpotCommand{63303, words, L"FREESPOT"};
    Text freeWebCommand{63304, words, L"FREEWEB"};
    Text spotLightCommand{63305, words, L"SPOTLIGHT"};
    Text lightListCommand{63318, words, L"LightList"};
    Text lightListCloseCommand{63319, words, L"LightListClose"};
    Text targetPointCommand{63324, words, L"TargetPoint"};
    Text lightCommand{63325, words, L"Light"};
    Text pointLightHelp{64001, lib, L"放置一个点光源，它向四面八方发光。\n先问位置(Enter 为 0,0,0)，再问要更改的选项，直到按 Enter 或 X；Esc 放弃这个光源。\n名称(N): 最多 255 个字符，不与其他光源重名。强度(I): 亮度的倍数，0 到 1000000。状态(S): 开或关。\n光度(P): 光强(Cd)、光通量(Lm)或照度(Lx、FC)，灯的预设颜色或色温。\n阴影(W): 关、锐化、已映射柔和、已采样柔和。衰减(A): 类型，起始和结束界限。\n颜色(C): R,G,B，或索引颜色、HSL、配色系统。\n只能在模型空间中使用，并且 LIGHTINGUNITS 不能为 0。\n例: POINTLIGHT 0,0,3000 I 0.8 X"};
    Text spotLightHelp{64002, lib, L"放置一个聚光灯，它从源位置照向目标。\n先问源位置(Enter 为 0,0,0)，再问目标(Enter 为 UCS 中向下 10 个单位，不能与源位置相同)，\n然后问要更改的选项，直到按 Enter 或 X；Esc 放弃这个光源。\n聚光角(H)、照射角(F): 最亮光锥和整个光锥的角度，0 到 160 度，聚光角不大于照射角；\n改照射角时聚光角随之改变，所以先输入照射角。其余选项与 POINTLIGHT 相同；不指定目标时请用 FREESPOT。\n只能在模型空间中使用，并且 LIGHTINGUNITS 不能为 0。\n例: SPOTLIGHT 0,0,3000 0,0,0 F 60 H 40 X"};
    Text targetPointHelp{64003, lib, L"放置一个目标点光源: 带目标的点光源，向四面八方发光，目标不改变光照。\n先问源位置(Enter 为 0,0,0)，再问目标(Enter 为 UCS 中向下 10 个单位)，\n然后问要更改的选项，直到按 Enter 或 X；Esc 放弃这个光源。\n选项与 POINTLIGHT 相同。\n只能在模型空间中使用，并且 LIGHTINGUNITS 不能为 0。\n例: TARGETPOINT 0,0,3000 0,0,0 I 0.8 X"};
    Text webLightHelp{64004, lib, L"放置一个光域灯光，它的配光来自光域网文件(.ies)，并照向目标。\n先问源位置(Enter 为 0,0,0)，再问目标(Enter 为 UCS 中向下 10 个单位)，\n然后问要更改的选项，直到按 Enter 或 X；Esc 放弃这个光源。\n光域网(B): 文件(F) 给出文件名(可含空格，所以单独一行)，~ 打开文件对话框；X、Y、Z 是光域网绕各轴的旋转角度。\n其余选项与 POINTLIGHT 相同，但没有衰减。IESINFO 说明光域网文件的内容。\n只能在模型空间中使用，并且 LIGHTINGUNITS 不能为 0。\n例: WEBLIGHT 0,0,3000 0,0,0 B F\ndownlight.ies\nE X"};
    Text freeSpotHelp{64005, lib, L"放置一个自由聚光灯: 没有目标的聚光灯，沿当前 UCS 的 Z 轴向下照射。\n只问源位置(Enter 为 0,0,0；在世界原点时沿世界坐标系的 Z 轴照射)，然后问要更改的选项，直到按 Enter 或 X；Esc 放弃这个光源。\n聚光角(H)、照射角(F): 最亮光锥和整个光锥的角度，0 到 160 度；\n照射角不大于聚光角时，聚光角改为照射角减 1 度。\n其余选项与 POINTLIGHT 相同。\n只能在模型空间中使用，并且 LIGHTINGUNITS 不能为 0。\n例: FREESPOT 0,0,3000 F 60 H 40 X"};
    Text freeWebHelp{64006, lib, L"放置一个自由光域灯光: 没有目标，配光来自光域网文件(.ies)，沿当前 UCS 的 Z 轴向下照射。\n只问源位置(Enter 为 0,0,0；在世界原点时沿世界坐标系的 Z 轴照射)，然后问要更改的选项，直到按 Enter 或 X；Esc 放弃这个光源。\n选项与 WEBLIGHT 相同。\n只能在模型空间中使用，并且 LIGHTINGUNITS 不能为 0。\n例: FREEWEB 0,0,3000 B F\ndownlight.ies\nE X"};
    Text distantLightHelp{64007, lib, L"放置一个平行光，例如阳光: 只有方向，亮度不随距离减弱。\n先问光源来向(Enter 为 0,0,0)和光源去向(Enter 为 1,1,1)，或用矢量(V)给出世界坐标系中的方向，例如 0,-0.5,-1；\n然后问要更改的选项，直到按 Enter 或 X；Esc 放弃这个光源。\n光度控制单位下平行光可能过度曝光，所以先问是否允许；脚本中不问。\n勾选复选框后，即使选的是禁用，以后也总是允许平行光并且不再询问；要恢复询问，请从设置文件(~/.config/quor/settings.ini)中删去 allowParallelLightDialog。\n选项与 POINTLIGHT 相同，但没有衰减，光度(P)中的强度只用 Cd。\n只能在模型空间中使用，并且 LIGHTINGUNITS 不能为 0。\n例: DISTANTLIGHT 0,0,10 0,0,0 I 0.5 X"};
    Text lightHelp{64008, lib, L"问光源的类型，然后与该类型自己的命令一样放置光源。\n点光源(P): POINTLIGHT。聚光灯(S): SPOTLIGHT。光域网(W): WEBLIGHT。目标点光源(T): TARGETPOINT。\n自由聚光灯(F): FREESPOT。自由光域(B): FREEWEB。平行光(D): DISTANTLIGHT。\nEnter 取上一次的类型；第一次为自由聚光灯。默认光源打开时先问是否关闭它；脚本中不问。\n只能在模型空间中使用，并且 LIGHTINGUNITS 不能为 0。\n例: LIGHT P 0,0,3000 X"};
    Text lightListHelp{64009, lib, L"打开“模型中的光源”选项板: 模型空间中的每个光源占一行，有类型和名称，按名称排序。选项板已打开时重新列出。\n没有窗口时，列表打印为表格；要看到更改，请再次运行 LIGHTLIST。LIGHTTABLE 列出句柄和各项数值；-LIGHTTABLE 把它们写入文件，供其他程序使用。\n在位编辑块(REFEDIT)时，只列出工作集中的光源。\n图层 *ADSK_SYSTEM_LIGHTS(光源命令使用的图层)上的光源有变化时，列表自动更新；其他图层上的光源有变化后，请再次运行 LIGHTLIST。\n单击一行即在图形中选择该光源，用 Ctrl 或 Shift 选择多个；在图形中选择光源时，列表中也随之选择。\n双击: 显示特性。Delete 键: 删除选定的光源。单击列标题: 按类型或名称排序，再次单击时反向。\n在行上单击右键: 删除，特性，轮廓显示(自动、开、关；只对一个光源，平行光没有轮廓)。在列表外单击右键: 显示或隐藏提示。\nLIGHTLISTCLOSE 关闭选项板。\nLIGHTLISTSTATE: 选项板打开时为 1，否则为 0。\n例: LIGHTLIST"};
    Text lightListCloseHelp{64010, lib, L"关闭“模型中的光源”选项板；选项板已关闭时什么也不做。\n此后系统变量 LIGHTLISTSTATE 为 0。LIGHTLIST 再次打开选项板。\n例: LIGHTLISTCLOSE"};
    Text glyphDisplay{64011, lib, L"轮廓显示"};
    // clang-format on
};

inline constexpr TextTable texts{};

inline constexpr std::size_t textCount = sizeof(TextTable) / sizeof(Text);

// The table is its rows one after the other, and nothing else.
static_assert(sizeof(TextTable) % sizeof(Text) == 0 && alignof(TextTable) == alignof(Text));
static_assert(std::is_standard_layout_v<TextTable> && std::is_trivially_copyable_v<TextTable>);

// The same rows as an array.
[[nodiscard]] inline std::array<Text, textCount> allTexts() {
    return std::bit_cast<std::array<Text, textCount>>(texts);
}

} // namespace quor::light
