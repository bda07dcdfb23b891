// The words of IESINFO, and of LIST where it speaks of a photometric web.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kAskWebPath{L"\n输入光域网文件名 <浏览>: ", L"\nPhotometric web file <browse>: "};
inline constexpr Text kChooseWeb{L"选择光域网文件", L"Choose a photometric web file"};
inline constexpr Text kWebFiles{L"光域网文件", L"Photometric web files"};
inline constexpr Text kNoSuchWeb{
    L"\n找不到光域网文件 %s。已查找: 图形所在的文件夹、当前文件夹、SUPPORTPATH 中的文件夹、随程序提供的光域网文件。\n",
    L"\nThe photometric web file %s was not found. Looked at: the folder of the drawing, the working folder, the "
    L"folders "
    L"of SUPPORTPATH, the web files that come with the program.\n"};

inline constexpr Text kWebEdition{L"格式", L"Format"};
inline constexpr Text kWebPhotometry{L"测光类型", L"Photometry"};
inline constexpr Text kWebTilt{L"倾斜", L"Tilt"};
inline constexpr Text kWebTiltFactors{L"灯具姿态 %d，%d 个角度 (不影响光强)",
                                      L"lamp position %d, %d angles (intensities are not changed)"};
inline constexpr Text kWebLamps{L"灯泡", L"Lamps"};
inline constexpr Text kWebLampsAbsolute{L"%s 个，绝对测光", L"%s, absolute photometry"};
inline constexpr Text kWebLampsRelative{L"%s 个，每个 %s lm", L"%s of %s lm"};
inline constexpr Text kWebFlux{L"光通量", L"Flux"};
inline constexpr Text kWebLargest{L"最大光强", L"Largest intensity"};
inline constexpr Text kWebVertical{L"垂直角", L"Vertical angles"};
inline constexpr Text kWebHorizontal{L"水平角", L"Horizontal angles"};
inline constexpr Text kWebAngleRange{L"%s° 到 %s°，%d 个", L"%s to %s degrees, %d of them"};
inline constexpr Text kWebSymmetry{L"对称", L"Symmetry"};
inline constexpr Text kWebOpening{L"出光面", L"Luminous opening"};
inline constexpr Text kWebOpeningSizes{L"宽 %s，长 %s，高 %s %s (负值表示圆形)",
                                       L"width %s, length %s, height %s %s (negative: round)"};
inline constexpr Text kWebWatts{L"输入功率", L"Input power"};
inline constexpr Text kWebText{L"说明", L"Text"}; // a line of the label without a keyword
inline constexpr Text kWebKeyword{L"[%s]", L"[%s]"};
inline constexpr Text kWebNotice{L"注意", L"Notice"};

// In the order of ies::Symmetry.
inline constexpr Text kWebSymmetries[] = {{L"不对称", L"none"},
                                          {L"轴对称", L"axial"},
                                          {L"四象限对称", L"four quadrants"},
                                          {L"关于 0-180 平面对称", L"about the plane 0-180"},
                                          {L"关于 90-270 平面对称", L"about the plane 90-270"},
                                          {L"关于 0 平面对称", L"about the plane 0"}};
// In the order of the numbers in the file, from 1.
inline constexpr Text kWebPhotometries[] = {{L"C 类", L"type C"}, {L"B 类", L"type B"}, {L"A 类", L"type A"}};
// In the order of ies::Warning::Kind; %d is the line.
inline constexpr Text kWebWarnings[] = {
    {L"第 %d 行: 不认识的版本行，按旧格式读取", L"line %d: unknown version line, read as an older format"},
    {L"第 %d 行: 缺少 360° 平面，以 0° 平面代替", L"line %d: the plane at 360 degrees is missing; that at 0 is used"},
    {L"第 %d 行: 数据之后还有内容，已忽略", L"line %d: what stands behind the data is ignored"},
    {L"第 %d 行: 水平角没有覆盖所有方向，其余方向没有光",
     L"line %d: the horizontal angles leave out directions; there is no light in them"}};

// LIST of a light with a web.
inline constexpr Text kLightWebFlux{L"光域网光通量", L"Web flux"};
inline constexpr Text kLightWebSymmetry{L"光域网对称", L"Web symmetry"};
inline constexpr Text kLightWebAngles{L"光域网角度", L"Web angles"};
inline constexpr Text kLightWebAngleRanges{L"垂直 %s° 到 %s°，水平 %s° 到 %s°",
                                           L"vertical %s to %s, horizontal %s to %s degrees"};
inline constexpr Text kLightWebUnread{L"无法读取", L"cannot be read"};

} // namespace quor::texts
