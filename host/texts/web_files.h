// What the host says of photometric web files that cannot be used. The first value is the file, the second the line.
#pragma once

#include "host/texts/text.h"

namespace quor::texts {

inline constexpr Text kWebForWebLightsOnly{L"只有光域灯光才能使用光域网文件。",
                                           L"Only web lights can use a photometric web file."};
inline constexpr Text kWebNameHoldsControls{
    L"光域网文件的名称中有控制字符，图形中无法保存。请重命名该文件。",
    L"The name of the photometric web file contains control characters, which a "
    L"drawing cannot store. Rename the file."};
inline constexpr Text kWebNotFound{L"找不到光域网文件“%s”。请检查路径后再试。",
                                   L"The photometric web file \"%s\" was not found. Check the path."};
inline constexpr Text kWebUnreadable{L"无法读取光域网文件“%s”: %s。请检查该文件后再试。",
                                     L"Cannot read the photometric web file \"%s\": %s. Check the file."};
inline constexpr Text kWebNoRegularFile{L"“%s”不是普通文件，不能用作光域网。请给出 IES 文件的名称。",
                                        L"\"%s\" is not a regular file and cannot be used as a photometric web. "
                                        L"Give the name of an IES file."};
inline constexpr Text kWebTooLarge{L"“%s”超过 16 MB，不是光域网文件。请给出 IES 文件的名称。",
                                   L"\"%s\" is larger than 16 MB and is not a photometric web file. "
                                   L"Give the name of an IES file."};
inline constexpr Text kWebEmpty{
    L"光域网文件“%s”是空的。请向灯具厂商重新获取该文件。",
    L"The photometric web file \"%s\" is empty. Get a new copy of the file from the luminaire manufacturer."};
inline constexpr Text kWebNoTilt{L"“%s”不是光域网文件: 缺少“TILT=NONE”或“TILT=INCLUDE”一行。请给出 IES (LM-63) 文件。",
                                 L"\"%s\" is not a photometric web file: the line \"TILT=NONE\" or "
                                 L"\"TILT=INCLUDE\" is missing. Give an IES file (LM-63)."};
inline constexpr Text kWebTiltIsEmpty{L"光域网文件“%s”第 %d 行: “TILT=”之后没有内容；文件未使用。请改为“TILT=NONE”。",
                                      L"Photometric web file \"%s\", line %d: nothing follows \"TILT=\"; "
                                      L"the file is not used. Change it to \"TILT=NONE\"."};
inline constexpr Text kWebTiltFile{
    L"光域网文件“%s”第 %d 行: 倾角系数在另一个文件“%s”中，不支持；文件未使用。"
    L"请改为“TILT=NONE”，或用“TILT=INCLUDE”将系数写入本文件。",
    L"Photometric web file \"%s\", line %d: the tilt factors are in another file, \"%s\", which is not supported; "
    L"the file is not used. Change it to \"TILT=NONE\", or put the factors in this file with \"TILT=INCLUDE\"."};
inline constexpr Text kWebMissingNumber{
    L"光域网文件“%s”在第 %d 行之后中断，缺少数值；文件未使用。请检查角度数目，或重新获取该文件。",
    L"The photometric web file \"%s\" ends after line %d, but more numbers are required; the file is not used. "
    L"Check the angle counts, or get a new copy of the file."};
inline constexpr Text kWebBadNumber{
    L"光域网文件“%s”第 %d 行: “%s”不是可用的数值；文件未使用。请改正该值，或重新获取该文件。",
    L"Photometric web file \"%s\", line %d: \"%s\" is not a usable number; the file is not used. "
    L"Correct it, or get a new copy of the file."};
inline constexpr Text kWebBadCount{
    L"光域网文件“%s”第 %d 行: 角度数目“%s”应为 1 到 10000 的整数；文件未使用。请改正该值，或重新获取该文件。",
    L"Photometric web file \"%s\", line %d: the angle count \"%s\" must be an integer from 1 to 10000; "
    L"the file is not used. Correct it, or get a new copy of the file."};
inline constexpr Text kWebBadTilt{
    L"光域网文件“%s”第 %d 行: 灯的姿态“%s”应为 1、2 或 3；文件未使用。请改正该值，或改为“TILT=NONE”并删去倾角数据。",
    L"Photometric web file \"%s\", line %d: the lamp position \"%s\" must be 1, 2 or 3; "
    L"the file is not used. Correct it, or change it to \"TILT=NONE\" and remove the tilt data."};
inline constexpr Text kWebBadType{
    L"光域网文件“%s”第 %d 行: 光度类型“%s”应为 1 (C)、2 (B) 或 3 (A)；文件未使用。请改正该值，或重新获取该文件。",
    L"Photometric web file \"%s\", line %d: the photometry type \"%s\" must be 1 (C), 2 (B) or 3 (A); "
    L"the file is not used. Correct it, or get a new copy of the file."};
inline constexpr Text kWebBadUnit{
    L"光域网文件“%s”第 %d 行: 长度单位“%s”应为 1 (英尺) 或 2 (米)；文件未使用。请改正该值，或重新获取该文件。",
    L"Photometric web file \"%s\", line %d: the length unit \"%s\" must be 1 (feet) or 2 (meters); "
    L"the file is not used. Correct it, or get a new copy of the file."};
inline constexpr Text kWebAnglesNotIncreasing{
    L"光域网文件“%s”第 %d 行: 角度“%s”不大于前一个角度；文件未使用。"
    L"请检查角度的顺序和角度数目，或重新获取该文件。",
    L"Photometric web file \"%s\", line %d: the angle \"%s\" is not greater than the previous one; "
    L"the file is not used. Check the order of the angles and their counts, or get a new copy of the file."};
inline constexpr Text kWebAnglesOutOfRange{
    L"光域网文件“%s”第 %d 行: 角度“%s”超出该光度类型的范围；文件未使用。"
    L"请检查角度、角度数目和光度类型，或重新获取该文件。",
    L"Photometric web file \"%s\", line %d: the angle \"%s\" is outside the range of this photometry type; "
    L"the file is not used. Check the angles, their counts, and the photometry type, or get a new copy of the file."};
inline constexpr Text kWebNegativeIntensity{
    L"光域网文件“%s”第 %d 行: “%s”使光强为负；文件未使用。请改正该值，或重新获取该文件。",
    L"Photometric web file \"%s\", line %d: \"%s\" results in a negative intensity; the file is not used. "
    L"Correct it, or get a new copy of the file."};

} // namespace quor::texts
