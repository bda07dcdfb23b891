// The words of LIST.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// Of every object.
inline constexpr Text kListHandle{L"句柄", L"Handle"};
inline constexpr Text kListSpace{L"空间", L"Space"};
inline constexpr Text kListLayer{L"图层", L"Layer"};
inline constexpr Text kListColor{L"颜色", L"Color"};
inline constexpr Text kListLinetype{L"线型", L"Linetype"};
inline constexpr Text kListLineweight{L"线宽", L"Lineweight"};
inline constexpr Text kListVisible{L"可见", L"Visible"};
inline constexpr Text kListModelSpace{L"模型空间", L"model space"};
inline constexpr Text kListPaperSpace{L"图纸空间 (%s)", L"paper space (%s)"};
inline constexpr Text kListBlock{L"块 %s", L"block %s"};
inline constexpr Text kListUcs{L"\n坐标以当前 UCS 表示。\n", L"\nCoordinates are those of the current UCS.\n"};
inline constexpr Text kListUnreadable{L"\n句柄为 %s 的对象正被使用，无法列出。\n",
                                      L"\nThe object with handle %s is in use and cannot be listed.\n"};
inline constexpr Text kListContents{L"文件内容 (组码和值)", L"As in the file (group code and value)"};
inline constexpr Text kYes{L"是", L"yes"};
inline constexpr Text kNo{L"否", L"no"};
inline constexpr Text kOn{L"开", L"on"};
inline constexpr Text kOff{L"关", L"off"};
inline constexpr Text kByLayer{L"随层", L"ByLayer"};
inline constexpr Text kByBlock{L"随块", L"ByBlock"};
inline constexpr Text kDefaultWeight{L"默认", L"Default"};
inline constexpr Text kNone{L"无", L"none"};

// Lines and faces.
inline constexpr Text kListStart{L"起点", L"From"};
inline constexpr Text kListEnd{L"终点", L"To"};
inline constexpr Text kListLength{L"长度", L"Length"};
inline constexpr Text kListDelta{L"增量", L"Delta"};
inline constexpr Text kListCorner{L"角点 %d", L"Corner %d"};
inline constexpr Text kListEdge{L"边 %d", L"Edge %d"};
inline constexpr Text kEdgeVisible{L"可见", L"visible"};
inline constexpr Text kEdgeInvisible{L"不可见", L"invisible"};

// Lights.
inline constexpr Text kLightName{L"名称", L"Name"};
inline constexpr Text kLightKind{L"类型", L"Kind"};
inline constexpr Text kLightStatus{L"状态", L"Status"};
inline constexpr Text kLightIntensity{L"强度因子", L"Intensity factor"};
inline constexpr Text kLightPosition{L"位置", L"Position"};
inline constexpr Text kLightTarget{L"目标", L"Target"};
inline constexpr Text kLightTargeted{L"有目标", L"Targeted"};
inline constexpr Text kLightDirection{L"方向", L"Direction"};
inline constexpr Text kLightHotspot{L"聚光角", L"Hotspot"};
inline constexpr Text kLightFalloff{L"照射角", L"Falloff"};
inline constexpr Text kLightAttenuation{L"衰减类型", L"Attenuation"};
inline constexpr Text kLightUsesLimits{L"使用衰减界限", L"Attenuation limits"};
inline constexpr Text kLightStartLimit{L"衰减起始界限", L"Attenuation start"};
inline constexpr Text kLightEndLimit{L"衰减结束界限", L"Attenuation end"};
inline constexpr Text kLightColor{L"光线颜色", L"Light color"};
inline constexpr Text kLightShadows{L"阴影", L"Shadows"};
inline constexpr Text kLightMapSize{L"阴影贴图尺寸", L"Shadow map size"};
inline constexpr Text kLightSoftness{L"阴影柔和度", L"Shadow softness"};
inline constexpr Text kLightSamples{L"阴影采样", L"Shadow samples"};
inline constexpr Text kLightShape{L"发光形状", L"Light shape"};
inline constexpr Text kLightShapeLength{L"形状长度", L"Shape length"};
inline constexpr Text kLightShapeWidth{L"形状宽度", L"Shape width"};
inline constexpr Text kLightShapeRadius{L"形状半径", L"Shape radius"};
inline constexpr Text kLightShapeVisible{L"形状可见", L"Shape visible"};
inline constexpr Text kLightGlyph{L"轮廓显示", L"Glyph display"};
inline constexpr Text kLightPlotGlyph{L"打印轮廓", L"Plot glyph"};
inline constexpr Text kLightPhysical{L"光度强度", L"Photometric intensity"};
inline constexpr Text kLightDistance{L"照度距离", L"Illuminance distance"};
inline constexpr Text kLightLamp{L"灯的颜色", L"Lamp color"};
inline constexpr Text kLightLampPreset{L"灯的预设", L"Lamp preset"};
inline constexpr Text kLightLampKelvin{L"灯的色温", L"Lamp temperature"};
inline constexpr Text kLightWebFile{L"光域网文件", L"Web file"};
inline constexpr Text kLightWebRotation{L"光域网旋转", L"Web rotation"};
inline constexpr Text kByPreset{L"按预设", L"by preset"};
inline constexpr Text kByKelvin{L"按色温", L"by temperature"};

inline constexpr Text kKindDistant{L"平行光", L"distant light"};
inline constexpr Text kKindPoint{L"点光源", L"point light"};
inline constexpr Text kKindSpot{L"聚光灯", L"spotlight"};
inline constexpr Text kKindWeb{L"光域灯光", L"web light"};

inline constexpr Text kAttenuations[] = {
    {L"无", L"none"}, {L"线性反比", L"inverse linear"}, {L"平方反比", L"inverse square"}};
inline constexpr Text kShadowKinds[] = {
    {L"锐化", L"sharp"}, {L"已映射柔和", L"soft mapped"}, {L"已采样柔和", L"soft sampled"}};
inline constexpr Text kShapes[] = {{L"线性", L"linear"},
                                   {L"矩形", L"rectangle"},
                                   {L"圆盘形", L"disk"},
                                   {L"圆柱体", L"cylinder"},
                                   {L"球形", L"sphere"}};
inline constexpr Text kGlyphDisplays[] = {{L"自动", L"automatic"}, {L"开", L"on"}, {L"关", L"off"}};
inline constexpr Text kIntensityMethods[] = {{L"%s cd (峰值强度)", L"%s cd (peak intensity)"},
                                             {L"%s lm (光通量)", L"%s lm (flux)"},
                                             {L"%s%s (照度)", L"%s%s (illuminance)"}};
inline constexpr Text kLampPresets[] = {
    {L"D65", L"D65 white"},
    {L"荧光灯", L"fluorescent"},
    {L"冷白光", L"cool white"},
    {L"白荧光", L"white fluorescent"},
    {L"日光荧光灯", L"daylight fluorescent"},
    {L"白炽灯", L"incandescent"},
    {L"氙灯", L"xenon"},
    {L"卤素灯", L"halogen"},
    {L"石英灯", L"quartz"},
    {L"金属卤素", L"metal halide"},
    {L"水银灯", L"mercury"},
    {L"磷光水银灯", L"phosphor mercury"},
    {L"高压钠灯", L"high pressure sodium"},
    {L"低压钠灯", L"low pressure sodium"},
    {L"自定义", L"custom"},
};

} // namespace quor::texts
