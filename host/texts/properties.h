// What the Properties and Layers palettes show and say, apart from the words of LIST (list.h) and LIGHTTABLE
// (light_table.h).
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

// What is selected.
inline constexpr Text kNothingSelected{L"未选择对象", L"No selection"};
inline constexpr Text kEverySelected{L"全部 (%d)", L"All (%d)"};
inline constexpr Text kSelectedOfKind{L"%s (%d)", L"%s (%d)"};
inline constexpr Text kNoOpenDrawing{L"没有打开的图形", L"No drawing is open"};
inline constexpr Text kKindLight{L"光源", L"Light"};
inline constexpr Text kKindLine{L"直线", L"Line"};
inline constexpr Text kKindFace{L"三维面", L"3D face"};
// The value of a row in which the selected objects differ.
inline constexpr Text kVaries{L"*多种*", L"*VARIES*"};
inline constexpr Text kNoValue{L"—", L"—"};

// Headings of groups.
inline constexpr Text kGroupGeneral{L"常规", L"General"};
inline constexpr Text kGroupLight{L"光源", L"Light"};
inline constexpr Text kGroupPhotometric{L"光度特性", L"Photometric"};
inline constexpr Text kGroupGeometry{L"几何图形 (世界坐标)", L"Geometry (world)"};
inline constexpr Text kGroupGeometryUcs{L"几何图形 (当前 UCS)", L"Geometry (current UCS)"};
inline constexpr Text kGroupAttenuation{L"衰减", L"Attenuation"};
inline constexpr Text kGroupShadows{L"阴影细节", L"Shadow details"};
inline constexpr Text kGroupWeb{L"光域网", L"Photometric web"};
inline constexpr Text kGroupGlyph{L"轮廓", L"Glyph"};
inline constexpr Text kGroupDrawing{L"图形", L"Drawing"};

// Labels of rows that no listing has.
inline constexpr Text kRowKind{L"对象", L"Object"};
inline constexpr Text kRowFilterColor{L"过滤颜色", L"Filter color"};
inline constexpr Text kRowGivenAs{L"强度给定方式", L"Given as"};
inline constexpr Text kRowCandela{L"灯的强度", L"Lamp intensity"};
inline constexpr Text kRowLumen{L"光通量", L"Luminous flux"};
inline constexpr Text kRowIlluminance{L"照度", L"Illuminance"};
inline constexpr Text kRowResultingColor{L"结果颜色", L"Resulting color"};
inline constexpr Text kRowPositionX{L"位置 X", L"Position X"};
inline constexpr Text kRowPositionY{L"位置 Y", L"Position Y"};
inline constexpr Text kRowPositionZ{L"位置 Z", L"Position Z"};
inline constexpr Text kRowDirectionX{L"方向 X", L"Direction X"};
inline constexpr Text kRowDirectionY{L"方向 Y", L"Direction Y"};
inline constexpr Text kRowDirectionZ{L"方向 Z", L"Direction Z"};
inline constexpr Text kRowShadowKind{L"阴影类型", L"Shadow type"};
inline constexpr Text kRowWebFlux{L"光域网光通量", L"Web flux"};
inline constexpr Text kRowWebSymmetry{L"光域网对称性", L"Web symmetry"};
inline constexpr Text kRowRotationX{L"绕 X 旋转", L"Rotation X"};
inline constexpr Text kRowRotationY{L"绕 Y 旋转", L"Rotation Y"};
inline constexpr Text kRowRotationZ{L"绕 Z 旋转", L"Rotation Z"};
inline constexpr Text kRowStartX{L"起点 X", L"Start X"};
inline constexpr Text kRowStartY{L"起点 Y", L"Start Y"};
inline constexpr Text kRowStartZ{L"起点 Z", L"Start Z"};
inline constexpr Text kRowEndX{L"端点 X", L"End X"};
inline constexpr Text kRowEndY{L"端点 Y", L"End Y"};
inline constexpr Text kRowEndZ{L"端点 Z", L"End Z"};
inline constexpr Text kRowCorners[] = {
    {L"顶点 1 X", L"Vertex 1 X"}, {L"顶点 1 Y", L"Vertex 1 Y"}, {L"顶点 1 Z", L"Vertex 1 Z"},
    {L"顶点 2 X", L"Vertex 2 X"}, {L"顶点 2 Y", L"Vertex 2 Y"}, {L"顶点 2 Z", L"Vertex 2 Z"},
    {L"顶点 3 X", L"Vertex 3 X"}, {L"顶点 3 Y", L"Vertex 3 Y"}, {L"顶点 3 Z", L"Vertex 3 Z"},
    {L"顶点 4 X", L"Vertex 4 X"}, {L"顶点 4 Y", L"Vertex 4 Y"}, {L"顶点 4 Z", L"Vertex 4 Z"}};
inline constexpr Text kRowEdges[] = {{L"边 1 可见", L"Edge 1 visible"},
                                     {L"边 2 可见", L"Edge 2 visible"},
                                     {L"边 3 可见", L"Edge 3 visible"},
                                     {L"边 4 可见", L"Edge 4 visible"}};
inline constexpr Text kRowLightingUnits{L"光源单位", L"Lighting units"};
inline constexpr Text kRowDefaultLighting{L"默认光源", L"Default lighting"};
inline constexpr Text kRowCurrentLayer{L"当前图层", L"Current layer"};
inline constexpr Text kRowInsertionUnits{L"插入单位", L"Insertion units"};

// Choices.
inline constexpr Text kNoYes[] = {{L"否", L"no"}, {L"是", L"yes"}};
inline constexpr Text kOffOn[] = {{L"关", L"off"}, {L"开", L"on"}};
inline constexpr Text kGivenAs[] = {
    {L"强度 (坎德拉)", L"intensity (candela)"}, {L"光通量 (流明)", L"flux (lumen)"}, {L"照度", L"illuminance"}};
inline constexpr Text kLampColors[] = {{L"按色温", L"by temperature"}, {L"按预设", L"by preset"}};
inline constexpr Text kLightingUnits[] = {{L"常规", L"generic"},
                                          {L"美制 (英尺烛光)", L"American (foot-candles)"},
                                          {L"国际 (勒克斯)", L"international (lux)"}};
inline constexpr Text kInsertionUnits[] = {{L"无单位", L"unitless"},
                                           {L"英寸", L"inches"},
                                           {L"英尺", L"feet"},
                                           {L"英里", L"miles"},
                                           {L"毫米", L"millimeters"},
                                           {L"厘米", L"centimeters"},
                                           {L"米", L"meters"},
                                           {L"千米", L"kilometers"},
                                           {L"微英寸", L"microinches"},
                                           {L"密耳", L"mils"},
                                           {L"码", L"yards"},
                                           {L"埃", L"angstroms"},
                                           {L"纳米", L"nanometers"},
                                           {L"微米", L"microns"},
                                           {L"分米", L"decimeters"},
                                           {L"十米", L"dekameters"},
                                           {L"百米", L"hectometers"},
                                           {L"百万公里", L"gigameters"},
                                           {L"天文单位", L"astronomical units"},
                                           {L"光年", L"light years"},
                                           {L"秒差距", L"parsecs"},
                                           {L"美国测量英尺", L"US survey feet"},
                                           {L"美国测量英寸", L"US survey inches"},
                                           {L"美国测量码", L"US survey yards"},
                                           {L"美国测量英里", L"US survey miles"}};

// Why a value was not taken: what is wrong, what is allowed.
inline constexpr Text kNeedsNumber{L"“%s”不是数值。请输入数值。", L"\"%s\" is not a number. Enter a number."};
inline constexpr Text kNeedsLength{L"“%s”不是长度。请按图形单位输入数值。",
                                   L"\"%s\" is not a length. Enter a number in the drawing's units."};
inline constexpr Text kNeedsWhole{L"“%s”不是整数。请输入整数。",
                                  L"\"%s\" is not a whole number. Enter a whole number."};
inline constexpr Text kNeedsAtLeast{L"值不能小于 %s。", L"The value must be %s or more."};
inline constexpr Text kNeedsBetween{L"值必须在 %s 到 %s 之间。", L"The value must be from %s to %s."};
inline constexpr Text kNeedsChoice{L"“%s”不是可选的值。可选: %s。", L"\"%s\" is not a choice. Choices: %s."};
inline constexpr Text kNeedsColor{
    L"“%s”不是颜色。请输入 1 到 255、颜色名、“红,绿,蓝”(0 到 255)、“配色系统$颜色”、随层或随块。",
    L"\"%s\" is not a color. Enter 1 to 255, a color name, \"red,green,blue\" (0 to 255), \"book$color\", ByLayer, or "
    L"ByBlock."};
inline constexpr Text kNeedsOwnColor{
    L"“%s”不是可用的颜色。请输入 1 到 255、颜色名、“红,绿,蓝”(0 到 255) 或“配色系统$颜色”。",
    L"\"%s\" is not a color that can be used here. Enter 1 to 255, a color name, \"red,green,blue\" (0 to 255), or "
    L"\"book$color\"."};
inline constexpr Text kNameIsEmpty{L"名称不能为空。请输入 1 到 255 个字符。",
                                   L"The name cannot be empty. Enter 1 to 255 characters."};
inline constexpr Text kNameIsTooLong{L"名称有 %d 个字符，最多 255 个。",
                                     L"The name has %d characters; at most 255 are allowed."};
inline constexpr Text kNameHasInvalid{L"名称中的字符无效。以下字符在光源名称中无效: %s 以及控制字符。",
                                      L"The name has invalid characters. Light names cannot contain %s or control "
                                      L"characters."};
inline constexpr Text kNameIsTaken{L"已有名为“%s”的光源。请使用其他名称。",
                                   L"There is already a light named \"%s\". Use another name."};
inline constexpr Text kNoConversion{
    L"光源“%s”的强度无法换算成这种方式。请直接在相应的行输入数值。",
    L"The intensity of light \"%s\" cannot be converted. Enter a number in the row of that unit instead."};
inline constexpr Text kWebFileNotFound{L"找不到文件“%s”。请检查路径，或点“浏览”选择文件。",
                                       L"The file \"%s\" was not found. Check the path or choose a file."};
inline constexpr Text kNoLayerToChoose{L"没有可用的图层“%s”。请选择列表中的图层。",
                                       L"There is no layer \"%s\" to choose. Choose one of the list."};
inline constexpr Text kValueRefused{L"该值未被接受，未做任何更改。",
                                    L"The value was not accepted; nothing was changed."};
// CHPROP.
inline constexpr Text kAskProperty{L"\n输入要更改的特性或 [?]: ", L"\nEnter property to change or [?]: "};
inline constexpr Text kAskPropertyValue{L"\n输入“%s”的新值 <%s>: ", L"\nEnter new value of \"%s\" <%s>: "};
inline constexpr Text kNoSuchProperty{L"\n所选对象没有共同的可更改特性“%s”。输入 ? 列出全部。\n",
                                      L"\nThe selected objects have no property \"%s\" in common that can be changed. "
                                      L"Enter ? to list them.\n"};
inline constexpr Text kPropertyChanged{L"\n已更改“%s”，共 %d 个对象。\n", L"\nObjects whose \"%s\" was changed: %d.\n"};
inline constexpr Text kRowIsReadOnly{L"“%s”不能更改。", L"\"%s\" cannot be changed."};
inline constexpr Text kRowIsGone{L"所选对象已改变，该值未被采用。",
                                 L"What is selected has changed; the value was not used."};
inline constexpr Text kCommandIsRunning{L"命令正在执行，不能更改。请先结束命令 (Esc)。",
                                        L"A command is running, so nothing can be changed. End it first (Esc)."};
inline constexpr Text kDrawingIsLocked{L"图形正被使用，不能更改。请稍后再试。",
                                       L"The drawing is in use and cannot be changed. Try again later."};
inline constexpr Text kObjectIsInUse{L"句柄为 %s 的对象正被使用，未做任何更改。请稍后再试。",
                                     L"The object with handle %s is in use; nothing was changed. Try again later."};
inline constexpr Text kObjectsOnLockedLayers{
    L"%d 个对象在锁定的图层上，未做任何更改。请先解锁图层。",
    L"Objects on locked layers: %d; nothing was changed. Unlock the layers first."};

// The palettes.
inline constexpr Text kShownObjects{L"显示的对象", L"Objects shown"};
inline constexpr Text kPropertyColumn{L"特性", L"Property"};
inline constexpr Text kValueColumn{L"值", L"Value"};
inline constexpr Text kMoreColors{L"选择颜色…", L"Select color…"};
inline constexpr Text kChooseColor{L"选择颜色", L"Select Color"};
inline constexpr Text kBrowse{L"浏览…", L"Browse…"};
inline constexpr Text kChooseWebFile{L"选择光域网文件", L"Select Photometric Web File"};
inline constexpr Text kLayerFilter{L"过滤图层(&F)", L"&Filter layers"};
inline constexpr Text kMakeLayer{L"新建图层(&N)", L"&New layer"};
inline constexpr Text kMakeCurrent{L"置为当前(&C)", L"Make &current"};
inline constexpr Text kNameOfNewLayer{L"新图层的名称", L"Name of the new layer"};
inline constexpr Text kColumnCurrent{L"当前", L"Current"};
inline constexpr Text kColumnLayerName{L"名称", L"Name"};
inline constexpr Text kColumnLayerOn{L"开", L"On"};
inline constexpr Text kColumnLayerFrozen{L"冻结", L"Frozen"};
inline constexpr Text kColumnLayerLocked{L"锁定", L"Locked"};
inline constexpr Text kColumnLayerColor{L"颜色", L"Color"};
inline constexpr Text kLayerListName{L"图层列表", L"List of layers"};

// Layers.
inline constexpr Text kLayerNameIsTaken{L"已有名为“%s”的图层。请使用其他名称。",
                                        L"There is already a layer \"%s\". Use another name."};
inline constexpr Text kCurrentLayerFrozen{L"图层“%s”是当前图层，不能冻结。请先将其他图层置为当前。",
                                          L"Layer \"%s\" is current and cannot be frozen. Make another layer current "
                                          L"first."};
inline constexpr Text kLayerIsGone{L"图层“%s”已不存在。", L"Layer \"%s\" is no longer there."};
inline constexpr Text kLayerCannotBeCurrent{L"图层“%s”已冻结，不能置为当前。请先解冻。",
                                            L"Layer \"%s\" is frozen and cannot be made current. Thaw it first."};
inline constexpr Text kNewLayerName{L"图层%d", L"Layer%d"};

} // namespace quor::texts
