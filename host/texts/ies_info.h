// The words of IESINFO, and of LIST where it speaks of a photometric web.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kAskWebPath{L"\n输入光域网文件名 <浏览>: ", L"\nEnter photometric web file name <browse>: "};
inline constexpr Text kChooseWeb{L"选择光域网文件", L"Choose a photometric web file"};
inline constexpr Text kWebFiles{L"光域网文件", L"Photometric web files"};
inline constexpr Text kNoSuchWeb{
    L"\n找不到光域网文件 %s。已查找: 图形所在的文件夹、当前文件夹、SUPPORTPATH 中的文件夹、随程序提供的光域网文件。\n",
    L"\nThe photometric web file %s was not found. Searched: the folder of the drawing, the working folder, "
    L"the folders in SUPPORTPATH, the web files that come with the program.\n"};

inline constexpr Text kWebEdition{L"格式", L"Format"};
inline constexpr Text kWebPhotometry{L"光度类型", L"Photometry"};
inline constexpr Text kWebTilt{L"倾斜", L"Tilt"};
inline constexpr Text kWebTiltFactors{L"灯的姿态 %d，%d 个角度 (不影响光强)",
                                      L"lamp position %d, %d angles (intensities are not affected)"};
inline constexpr Text kWebLamps{L"光源", L"Lamps"};
inline constexpr Text kWebLampsAbsolute{L"%s 个，绝对光度", L"%s, absolute photometry"};
inline constexpr Text kWebLampsRelative{L"%s 个，每个 %s lm", L"%s, %s lm each"};
inline constexpr Text kWebFlux{L"光通量", L"Flux"};
inline constexpr Text kWebLargest{L"最大光强", L"Maximum intensity"};
inline constexpr Text kWebVertical{L"垂直角", L"Vertical angles"};
inline constexpr Text kWebHorizontal{L"水平角", L"Horizontal angles"};
inline constexpr Text kWebAngles{L"%s° 到 %s°，%d 个", L"%s° to %s°, %d angles"};
inline constexpr Text kWebPlanes{L"%s° 到 %s°，%d 个", L"%s° to %s°, %d planes"};
inline constexpr Text kWebOneAngle{L"%s°，1 个", L"%s°, 1 angle"};
inline constexpr Text kWebOnePlane{L"%s°，1 个", L"%s°, 1 plane"};
inline constexpr Text kWebSymmetry{L"对称性", L"Symmetry"};
inline constexpr Text kWebOpening{L"出光面", L"Luminous opening"};
inline constexpr Text kWebWatts{L"输入功率", L"Input power"};
inline constexpr Text kWebText{L"说明", L"Text"}; // a line of the label without a keyword
inline constexpr Text kWebKeyword{L"[%s]", L"[%s]"};
inline constexpr Text kWebManufacturer{L"厂商", L"Manufacturer"};
inline constexpr Text kWebLuminaire{L"灯具", L"Luminaire"};
inline constexpr Text kWebNotice{L"注意", L"Notice"};

// In the order of ies::Symmetry.
inline constexpr Text kWebSymmetries[] = {{L"不对称", L"none"},
                                          {L"轴对称", L"axial"},
                                          {L"四象限对称", L"four quadrants"},
                                          {L"关于 0-180 平面对称", L"about the 0-180 plane"},
                                          {L"关于 90-270 平面对称", L"about the 90-270 plane"},
                                          {L"关于 0 平面对称", L"about the 0 plane"}};
// In the order of the numbers in the file, from 1.
inline constexpr Text kWebPhotometries[] = {{L"C 类", L"type C"}, {L"B 类", L"type B"}, {L"A 类", L"type A"}};
// In the order of ies::OpeningShape, with the sizes that it tells; the unit comes behind.
inline constexpr Text kWebOpenings[] = {
    {L"未定义的形状，宽 %s，长 %s，高 %s", L"undefined shape, width %s, length %s, height %s"},
    {L"点", L"point"},
    {L"矩形，宽 %s，长 %s", L"rectangle, width %s, length %s"},
    {L"长方体，宽 %s，长 %s，高 %s", L"box, width %s, length %s, height %s"},
    {L"圆盘形，直径 %s", L"disk, diameter %s"},
    {L"竖直的圆盘形，直径 %s", L"vertical disk, diameter %s"},
    {L"椭圆形，宽 %s，长 %s", L"ellipse, width %s, length %s"},
    {L"竖直圆柱体，直径 %s，高 %s", L"vertical cylinder, diameter %s, height %s"},
    {L"竖直椭圆柱体，宽 %s，长 %s，高 %s", L"vertical elliptical cylinder, width %s, length %s, height %s"},
    {L"沿灯具长度方向的水平圆柱体，直径 %s，长 %s", L"horizontal cylinder along the luminaire, diameter %s, length %s"},
    {L"沿灯具宽度方向的水平圆柱体，直径 %s，长 %s",
     L"horizontal cylinder across the luminaire, diameter %s, length %s"},
    {L"球形，直径 %s", L"sphere, diameter %s"},
    {L"椭球形，宽 %s，长 %s，高 %s", L"ellipsoid, width %s, length %s, height %s"}};
// In the order of ies::Warning::Kind; the first value is the line, the second the number that the warning has.
inline constexpr Text kWebWarnings[] = {
    {L"第 %d 行: 没有可识别的版本行，按 LM-63-%d 的规则读取",
     L"line %d: no recognized version line; read by the rules of LM-63-%d"},
    {L"第 %d 行: 缺少闭合一周的平面，以首个平面代替",
     L"line %d: the plane that closes the circle is missing; the first plane is used instead"},
    {L"第 %d 行: 数据之后还有文字，已忽略", L"line %d: the text after the data is ignored"},
    {L"第 %d 行: 多出的数值有 %d 个；角度数目可能有误，或以逗号作小数点",
     L"line %d: extra numbers: %d; the angle counts may be wrong, or commas were used as decimal points"},
    {L"第 %d 行: 水平角没有覆盖所有方向，其余方向没有光",
     L"line %d: the horizontal angles do not cover all directions; there is no light in the others"},
    {L"第 %d 行: 唯一的平面不在 0°，仍用于所有方向",
     L"line %d: the only plane is not at 0°; it is still used for all directions"},
    {L"第 %d 行: 垂直角没有覆盖所有方向，其余方向没有光",
     L"line %d: the vertical angles do not cover all directions; there is no light in the others"}};

// LIST of a light with a web.
inline constexpr Text kLightWebUsed{L"所用文件", L"File used"};
inline constexpr Text kLightWebFlux{L"光域网光通量", L"Web flux"};
inline constexpr Text kLightWebFluxes{L"文件中 %s lm，图形中保存的 %s lm",
                                      L"%s lm in the file, %s lm saved in the drawing"};
inline constexpr Text kLightWebFluxKept{L"%s lm (图形中保存的)", L"%s lm (saved in the drawing)"};
inline constexpr Text kLightWebSymmetry{L"光域网对称性", L"Web symmetry"};
inline constexpr Text kLightWebAngles{L"光域网角度", L"Web angles"};
inline constexpr Text kLightWebAngleRanges{L"垂直 %s，水平 %s", L"vertical %s, horizontal %s"};
inline constexpr Text kLightWebRange{L"%s° 到 %s°", L"%s° to %s°"};
inline constexpr Text kLightWebOneAngle{L"%s°", L"%s°"};
// The drawing keeps the three numbers as somebody gave them.
inline constexpr Text kLightWebRotationAsGiven{L"X=%s  Y=%s  Z=%s (按输入值保存)", L"X=%s  Y=%s  Z=%s (as given)"};
inline constexpr Text kLightWebUnread{L"无法读取", L"cannot be read"};

} // namespace quor::texts
