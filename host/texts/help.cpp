#include "host/texts/help.h"

namespace quor::texts {

namespace {

constexpr Text kFiles{L"图形和文件", L"Drawings and files"};
constexpr Text kUndoing{L"放弃和重做", L"Undo and redo"};
constexpr Text kObjects{L"对象", L"Objects"};
constexpr Text kSpaces{L"坐标系、空间和图层", L"Coordinate systems, spaces, and layers"};
constexpr Text kViews{L"视图", L"Views"};
constexpr Text kPrograms{L"设置、脚本和帮助", L"Settings, scripts, and help"};

constexpr Text kNoQuestions{L"", L""};

// clang-format off
constexpr HelpPage kPages[] = {
    {L"NEW", kFiles,
     {L"新建一个空图形，并使它成为当前图形。",
      L"Creates an empty drawing and makes it current."},
     kNoQuestions, L"NEW"},
    {L"OPEN", kFiles,
     {L"打开 DXF 图形，并使它成为当前图形。",
      L"Opens a DXF drawing and makes it current."},
     {L"图形文件名: 可含空格；直接按 Enter 时选择文件。\n有错误的文件不会打开，并说明出错的行；可用 RECOVER 试着修复。",
      L"File name: may contain spaces; press Enter to choose a file.\nA file with errors is not opened; the message gives "
      L"the line. RECOVER may be able to open it."},
     L"OPEN office.dxf"},
    {L"RECOVER", kFiles,
     {L"打开有错误的图形: 读出完好的部分，并列出问题。",
      L"Opens a drawing that has errors: reads the intact part and lists the problems."},
     {L"图形文件名: 可含空格；直接按 Enter 时选择文件。\n保存之前，原文件不会改变。",
      L"File name: may contain spaces; press Enter to choose a file.\nThe file does not change until you save."},
     L"RECOVER broken.dxf"},
    {L"SAVE", kFiles,
     {L"把当前图形保存到它的文件。",
      L"Saves the current drawing to its file."},
     {L"新图形会询问文件名，与 SAVEAS 相同。以前的版本保留为 .bak。",
      L"For a new drawing, asks for a file name as SAVEAS does. The previous version is kept as .bak."},
     L"SAVE"},
    {L"SAVEAS", kFiles,
     {L"用另一个文件名保存当前图形。",
      L"Saves the current drawing under another name."},
     {L"文件名: 可含空格；没有扩展名时加上 .dxf。\n替换已有文件之前会询问: 是(Y) 替换，否(N) 不保存。",
      L"File name: may contain spaces; .dxf is added to a name without an extension.\nAsks before replacing a file: Yes "
      L"replaces it, No does not save."},
     L"SAVEAS office2.dxf"},
    {L"CLOSE", kFiles,
     {L"关闭当前图形。",
      L"Closes the current drawing."},
     {L"有未保存的更改时询问: 是(Y) 先保存，否(N) 放弃更改，Esc 不关闭。",
      L"If there are unsaved changes, asks what to do: Yes saves them first, No discards them, Esc keeps the drawing open."},
     L"CLOSE"},
    {L"DOCUMENTS", kFiles,
     {L"列出打开的图形，并可切换到其中之一。",
      L"Lists the open drawings and switches to one of them."},
     {L"当前图形前有 *；正在编辑块(REFEDIT)的图形注明块名。输入编号或名称即切换；Enter 不切换。",
      L"The current drawing is marked with *; a block that is being edited in place (REFEDIT) is named. Enter a number "
      L"or name to switch; press Enter to stay."},
     L"DOCUMENTS 2"},
    {L"QUIT", kFiles,
     {L"退出程序。",
      L"Exits the program."},
     {L"每个有未保存更改的图形都会询问: 是(Y) 放弃更改，否(N) 不退出。由脚本调用时不询问。",
      L"Asks about each drawing with unsaved changes: Yes discards them, No does not exit. Does not ask in a script."},
     L"QUIT"},

    {L"U", kUndoing,
     {L"放弃最近的一个命令。",
      L"Undoes the last command."},
     kNoQuestions, L"U"},
    {L"UNDO", kUndoing,
     {L"放弃最近的若干个命令。",
      L"Undoes several commands."},
     {L"要放弃的命令数，Enter 为 1。\n全部(A): 放弃所有命令。标记(M): 记住此处。后退(B): 放弃到上一个标记为止。",
      L"Number of commands to undo; Enter for 1.\nAll: every command. Mark: marks this point. Back: everything since the last mark."},
     L"UNDO 3"},
    {L"REDO", kUndoing,
     {L"恢复刚被 U 或 UNDO 放弃的命令。",
      L"Restores what the preceding U or UNDO undid."},
     {L"要重做的命令数，Enter 为 1。全部(A): 全部重做。",
      L"Number of commands to redo; Enter for 1. All: every command."},
     L"REDO 1"},

    {L"SELECT", kObjects,
     {L"选择对象，供下一个命令使用。",
      L"Selects objects for the next command."},
     {L"选择对象: 点取，或 ALL 全部、L 上一个、P 前一个选择、#1F 句柄、R 删除、A 添加；Enter 结束。\n"
      L"ALL 选中看得见的全部对象: 关闭或冻结图层上的对象和不可见的对象不选。\n"
      L"不选任何对象而按 Enter，即取消选择。",
      L"Select objects: pick, or enter ALL, Last, Previous, #1F for a handle, Remove, or Add; Enter ends.\nALL selects all "
      L"that can be seen: not invisible objects, nor those on layers that are off or frozen.\nEnter with nothing selected "
      L"clears the selection."},
     L"SELECT ALL "},
    {L"ERASE", kObjects,
     {L"删除对象。",
      L"Erases objects."},
     {L"选择对象，与 SELECT 相同；已经选好的对象直接删除。锁定图层上的对象保留。",
      L"Select objects as in SELECT; objects already selected are erased at once. Objects on locked layers are kept."},
     L"ERASE L "},
    {L"LIST", kObjects,
     {L"列出对象的所有特性；对光源列出全部参数及单位。",
      L"Lists all properties of objects; for lights, every value with its unit."},
     {L"选择对象，与 SELECT 相同。",
      L"Select objects as in SELECT."},
     L"LIST ALL "},
    {L"PROPERTIES", kObjects,
     {L"显示对象的特性，内容与 LIST 相同；对象保持选定。",
      L"Shows the properties of objects as LIST does; they stay selected."},
     {L"有窗口的程序打开特性选项板，特性可以在其中更改。在终端中选择对象，与 SELECT 相同；已经选好的对象直接显示。"
      L"显示的对象此后保持选定，供下一个命令使用。",
      L"A program with windows opens the Properties palette, where they can be changed. On a terminal, select objects as in "
      L"SELECT; objects already selected are shown at once. Either way they are selected afterwards, for "
      L"the next command."},
     L"PROPERTIES ALL "},
    {L"CHPROP", kObjects,
     {L"更改一个或多个对象的一项特性。",
      L"Changes one property of one or several objects."},
     {L"先选择对象，再输入特性的名称(特性选项板中的文字，或 light.intensity 之类的标识)，然后输入值；“?”列出所选对象共有的"
      L"可更改特性。值的格式与特性选项板相同，可以带单位。被拒绝时任何对象都不改变。",
      L"Select objects, enter a property (its name in the Properties palette, or an id such as light.intensity), then the "
      L"value. ? lists what the selected objects have in common and can be changed. Values are typed as in the palette, with or "
      L"without unit. A value that is refused changes nothing in any of them."},
     L"CHPROP ALL"},
    {L"LIGHTTABLE", kObjects,
     {L"以表格列出图形中的光源。",
      L"Lists the lights of the drawing in tables."},
     {L"选择光源，与 SELECT 相同；未选择时按 Enter 列出模型空间和所有布局中的全部光源。已经选好的对象直接列出，其中不是光源的只计数。\n"
      L"分四个表: 光源、位置和目标、强度、颜色和阴影。坐标以当前 UCS 表示；一行放不下时截短名称，表分段显示；没有任何内容的列不显示，“-”表示该光源没有此值。\n"
      L"平行光没有位置，只有方向。LIGHTINGUNITS 为 0 时只有强度因子起作用，不显示 cd、lm 和照度。\n"
      L"在位编辑块(REFEDIT)时，全部光源包括工作集中的光源，末尾说明其数量。",
      L"Select lights as in SELECT; Enter with none selected lists all lights in model space and in all layouts. Objects already "
      L"selected are listed at once; those that are not lights are only counted.\n"
      L"There are four tables: lights; position and target; intensity; color and shadows. Coordinates are in the current UCS; "
      L"names are shortened and a table is shown in parts where it is wider than the screen; empty columns are omitted; \"-\" "
      L"means that the light has no such value.\n"
      L"A distant light has no position, only a direction. When LIGHTINGUNITS is 0, only the intensity factor applies; cd, "
      L"lm, and illuminance are not shown.\n"
      L"While a block is edited in place (REFEDIT), the lights of the working set are among all lights; a message counts them."},
     L"LIGHTTABLE "},
    {L"-LIGHTTABLE", kObjects,
     {L"把光源写入 CSV 或 JSON 文件，或以表格列出。",
      L"Writes the lights to a CSV or JSON file, or lists them."},
     {L"格式: 表格(T) 与 LIGHTTABLE 相同；CSV(C) 和 JSON(J) 写入文件，内容完整，字段名与语言无关，坐标为世界坐标。\n"
      L"文件名: 可含空格；Enter 为图形所在文件夹中与图形同名的文件；没有扩展名时加上 .csv 或 .json。替换已有文件之前会询问。\n"
      L"选择光源，与 LIGHTTABLE 相同。\n"
      L"CSV 为 UTF-8，各列以逗号分隔。以 =、+、- 或 @ 开头的文字照原样写入；用电子表格打开时，请将各列作为文本导入。",
      L"Format: Table is the same as LIGHTTABLE; CSV and JSON write a file with full contents, field names that are the same "
      L"in every language, and world coordinates.\n"
      L"File name: may contain spaces; Enter uses the name and folder of the drawing; .csv or .json is added to a name without "
      L"an extension. Asks before replacing a file.\n"
      L"Select lights as in LIGHTTABLE.\n"
      L"CSV is UTF-8, separated by commas. Text that begins with =, +, -, or @ is written as is; when you open the file in a "
      L"spreadsheet, import the columns as text."},
     L"-LIGHTTABLE T "},
    {L"IESINFO", kObjects,
     {L"说明光域网文件 (.ies) 的内容，或不能使用它的原因。",
      L"Describes a photometric web file (.ies), or tells why it cannot be used."},
     {L"文件名: 可含空格；直接按 Enter 时选择文件。\n"
      L"没有路径的名称在这些地方查找: 图形所在的文件夹、当前文件夹、SUPPORTPATH、随程序提供的文件。",
      L"File name: may contain spaces; press Enter to choose a file.\nA name without a path is searched for in the folder of "
      L"the drawing, in the working folder, in SUPPORTPATH, and among the files that come with the program."},
     L"IESINFO downlight.ies"},
    {L"COLORBOOKS", kObjects,
     {L"列出配色系统，或一个配色系统中的颜色。",
      L"Lists the color books, or the colors in one of them."},
     {L"配色系统名称: 可含空格；Enter 列出全部，不能使用的文件连同原因列在最后。\n"
      L"每次都会重新读取配色系统。要添加配色系统，请将 .book 文件放入用户设置旁的文件夹 colorbooks。执行其他命令时可用 'COLORBOOKS。",
      L"Name of a color book: may contain spaces; Enter lists all of them, then the files that cannot be used, with the "
      L"reason.\nThe books are read again each time. To add one, put a .book file in the folder colorbooks beside your "
      L"settings file. 'COLORBOOKS can be used during other commands."},
     L"COLORBOOKS Neutral Greys"},
    {L"LINE", kObjects,
     {L"画直线段。",
      L"Draws straight line segments."},
     {L"第一个点，然后是下一点，直到按 Enter。点可写作 x,y 或 x,y,z，@ 表示相对，@d<a 表示极坐标。\n"
      L"闭合(C): 回到第一个点并结束。放弃(U): 去掉最后一段。",
      L"First point, then next points until you press Enter. Enter points as x,y or x,y,z; @ is relative, @d<a is polar.\n"
      L"Close: returns to the first point and ends. Undo: removes the last segment."},
     L"LINE 0,0 100,0 @0,50 C"},
    {L"3DFACE", kObjects,
     {L"画有三个或四个角点的面。",
      L"Draws faces with three or four corners."},
     {L"第一到第四点；第四点按 Enter 成为三角形。之后每个面再给两点，Enter 结束。\n不可见(I): 在一点之前输入，隐藏从该点开始的边。",
      L"First to fourth point; Enter at the fourth makes a triangle. Each additional face takes two more points; Enter ends.\n"
      L"Invisible: entered before a point, hides the edge that starts there."},
     L"3DFACE 0,0 10,0 10,10 0,10 "},
    {L"REFEDIT", kObjects,
     {L"在位编辑块: 通过一个块参照删除和添加块中的对象。",
      L"Edits a block in place, through one of its references: erases and adds objects."},
     {L"选择一个块参照，与 SELECT 相同；已经选好的参照直接编辑。选中的其他对象被忽略。\n"
      L"块中的光源、直线和面以副本成为工作集，可以列出和删除；在同一空间中新画的对象也加入工作集。"
      L"在此期间只能选择工作集中的对象。其他类型的对象保留在块中。参照本身暂时不可见。\n"
      L"光源在缩放或旋转的参照中只移动位置和目标，其他值不变。\n"
      L"完成后用 REFCLOSE；在此之前不能保存图形。REFEDITNAME 是正在编辑的块的名称。",
      L"Select one block reference as in SELECT; a reference already selected is edited at once. Other objects selected "
      L"with it are ignored.\n"
      L"Copies of the lights, lines, and faces of the block become the working set and can be listed and erased; what you "
      L"draw in the same space joins it. Meanwhile, only objects of the working set can be selected. Objects of other types "
      L"stay in the block. The reference itself is invisible.\n"
      L"In a scaled or rotated reference, only the position and target of a light move; its other values stay.\n"
      L"When done, use REFCLOSE; until then, the drawing cannot be saved. REFEDITNAME is the name of the block being edited."},
     L"REFEDIT #60 "},
    {L"REFCLOSE", kObjects,
     {L"结束在位编辑块，保存或放弃更改。",
      L"Ends editing a block in place and saves or discards the changes."},
     {L"保存(S): 更改写入块的定义，该块的所有参照都随之改变；没有改动的对象保持原样。"
      L"放弃(D): 块保持原样，编辑用的副本和其间新画的对象被移除。Enter 为保存。",
      L"Save: the changes are written to the block definition and show in all its references; objects that were not changed "
      L"stay exactly as they were. Discard: the block stays as it was; the working copies, and what was drawn meanwhile, are "
      L"removed. Enter saves."},
     L"REFCLOSE S"},

    {L"UCS", kSpaces,
     {L"设置用户坐标系。",
      L"Sets the user coordinate system."},
     {L"给出原点，再给 X 轴上的点和 XY 平面上的点；Enter 接受当前状态。\n"
      L"世界(W): 世界坐标系。原点(O): 只移动原点。Z 轴(ZA): 原点和正 Z 轴。三点(3P): 原点、X 轴、XY 平面。\n"
      L"X、Y、Z: 绕该轴旋转。上一个(P): 回到以前的坐标系。",
      L"The origin, then a point on the X axis and one on the XY plane; Enter accepts the current state.\n"
      L"World: world coordinates. Origin: moves only the origin. ZAxis: origin and positive Z axis. 3Point: origin, X "
      L"axis, XY plane.\nX, Y, Z: rotates about that axis. Previous: returns to the previous UCS."},
     L"UCS Z 45"},
    {L"LAYOUT", kSpaces,
     {L"列出布局，或切换到一个布局。",
      L"Lists the layouts or switches to one."},
     {L"列出(L): 所有布局。设置(S): 布局名，可含空格；“模型”回到模型空间。",
      L"List: all layouts. Set: a layout name, which may contain spaces; Model returns to model space."},
     L"LAYOUT S Layout1"},
    {L"MODEL", kSpaces,
     {L"切换到模型空间。",
      L"Switches to model space."},
     kNoQuestions, L"MODEL"},
    {L"PAPER", kSpaces,
     {L"切换到最近使用的布局的图纸空间。",
      L"Switches to the paper space of the most recently used layout."},
     kNoQuestions, L"PAPER"},
    {L"MSPACE", kSpaces,
     {L"在布局中，进入视口的模型空间。",
      L"In a layout, switches to model space in a viewport."},
     kNoQuestions, L"MSPACE"},
    {L"PSPACE", kSpaces,
     {L"在布局中，从视口回到图纸空间。",
      L"In a layout, switches from the viewport back to paper space."},
     kNoQuestions, L"PSPACE"},
    {L"LAYER", kSpaces,
     {L"列出、新建或更改图层，或设置当前图层。",
      L"Lists, creates, and changes layers, and sets the current one."},
     {L"列出(?): 所有图层。新建(M): 名称；该图层成为当前图层。设置(S): 已有图层的名称。Enter 结束。\n"
      L"开(ON)、关(OFF)、颜色(C)、冻结(F)、解冻(T)、锁定(LO)、解锁(U): 图层的名称，多个名称以逗号分隔，可用 * 和 ? 作通配符。\n"
      L"当前图层不能冻结。锁定图层上的对象不能更改或删除。\n"
      L"名称为 1 到 255 个字符，可含空格，不含 <>/\\\":;?*|=,` 。",
      L"?: all layers. Make: a name; the new layer becomes current. Set: the name of an existing layer. Enter ends.\n"
      L"ON, OFF, Color, Freeze, Thaw, LOck, Unlock: names of layers, separated by commas; * and ? are wildcards.\n"
      L"The current layer cannot be frozen. Objects on locked layers cannot be changed or erased.\n"
      L"Names have 1 to 255 characters, may contain spaces, and contain none of <>/\\\":;?*|=,` ."},
     L"LAYER ? "},
    {L"LAYERS", kSpaces,
     {L"显示“图层”选项板；没有窗口时列出图层。",
      L"Shows the Layers palette; without windows, lists the layers."},
     kNoQuestions, L"LAYERS"},

    {L"ZOOM", kViews,
     {L"放大、缩小画面，或显示全部图形。",
      L"Magnifies or shrinks the picture, or shows the whole drawing."},
     {L"指定窗口的两个角点；或输入比例因子: 2 相对于全部图形，2X 相对于当前视图。\n"
      L"范围(E): 所有可见的对象；全部(A): 从上方看时还包括图形界限；上一个(P): 前一个视图；中心(C): 中心点和比例或高度；\n"
      L"比例(S)；窗口(W)。执行其他命令时可用 'ZOOM。鼠标滚轮也缩放，按住中键平移。",
      L"Specify the two corners of a window, or enter a scale factor: 2 is relative to the whole drawing, 2X to the current "
      L"view.\n"
      L"Extents: everything that is visible; All: seen from above, the limits of the drawing too; Previous: the view before; "
      L"Center: a center point and a scale or height; Scale; Window.\n"
      L"'ZOOM can be used during other commands. The mouse wheel zooms too; drag with the middle button to pan."},
     L"ZOOM E"},
    {L"VIEW", kViews,
     {L"恢复标准视图或命名视图；保存、删除命名视图。",
      L"Restores a standard or named view; saves and deletes named views."},
     {L"视图名称: 标准视图 TOP、BOTTOM、FRONT、BACK、LEFT、RIGHT、SWISO、SEISO、NEISO、NWISO，或图形中的视图。\n"
      L"保存(S): 把当前视图存入图形，随图形一起保存，可用 U 放弃；删除(D)；?: 列出所有视图。执行其他命令时可用 'VIEW。",
      L"View name: one of the standard views TOP, BOTTOM, FRONT, BACK, LEFT, RIGHT, SWISO, SEISO, NEISO, NWISO, or a view of the "
      L"drawing.\n"
      L"Save: puts the current view into the drawing, to be saved with it; U undoes it. Delete. ?: lists all views. 'VIEW can "
      L"be used during other commands."},
     L"VIEW SWISO"},
    {L"VISUALSTYLE", kViews,
     {L"以线框或着色方式显示图形。",
      L"Shows the drawing as lines, or shaded."},
     {L"线框(W)；着色(S): 面由图形中的光源照亮；DEFAULTLIGHTING 为 1 时由默认光源照亮；室内(I): 着色，但不显示挡在视线前的"
      L"顶棚和外墙，可从外面看到室内。",
      L"Wireframe; Shaded: the lights of the drawing illuminate its faces, or default lighting while DEFAULTLIGHTING is 1; "
      L"Interior: shaded, without the ceiling and the outer walls that stand before the eye, so that rooms are looked into "
      L"from outside."},
     L"VISUALSTYLE S"},
    {L"PROJECTION", kViews,
     {L"以平行投影或透视方式显示图形。",
      L"Shows the drawing in parallel projection or in perspective."},
     {L"平行(P)；透视(E)。",
      L"Parallel; pErspective."},
     L"PROJECTION E"},
    {L"PLAN", kViews,
     {L"从上方显示坐标系的平面。",
      L"Shows the plane of a coordinate system from above."},
     {L"当前(C): 当前 UCS；世界(W)。",
      L"Current: the current UCS; World."},
     L"PLAN W"},
    {L"REGEN", kViews,
     {L"从图形重新生成画面。",
      L"Makes the picture anew from the drawing."},
     kNoQuestions, L"REGEN"},
    {L"OSNAP", kViews,
     {L"设置对象捕捉: 光标附近的端点、中点和中心。",
      L"Sets object snaps: end points, midpoints and centers near the cursor."},
     {L"端点(E)、中点(M)、中心(C) 各自开关；全部(A)；无(N)；开(ON)、关(OFF): 不改变所选的捕捉。Enter 结束。\n"
      L"着色显示时还捕捉光标下的面。设置保存在 OSMODE 中。",
      L"End, Mid, and Center are each switched; All; None; ON and OFF keep what is chosen. Enter ends.\n"
      L"In a shaded picture the face under the cursor is snapped to as well. The setting is kept in OSMODE."},
     L"OSNAP ALL "},
    {L"SETVAR", kPrograms,
     {L"查看或更改系统变量。也可直接输入变量名。",
      L"Shows and sets system variables. A variable name can be typed directly."},
     {L"变量名，然后是新值；Enter 保留当前值。? 列出变量，可用 * 和 ? 作通配符。",
      L"The name, then the new value; Enter keeps the current value. ? lists variables; * and ? are wildcards."},
     L"SETVAR LUPREC 2"},
    {L"TEXTSCR", kPrograms,
     {L"显示文本窗口，其中有命令行的全部历史。",
      L"Shows the text window, which holds the whole history of the command line."},
     {L"在窗口界面中也可按 F2；执行其他命令时可用 'TEXTSCR。在终端中只有一个屏幕，不作切换。",
      L"In the window interface F2 does the same; 'TEXTSCR can be used during other commands. A terminal has one screen only, so "
      L"nothing changes there."},
     L"TEXTSCR"},
    {L"GRAPHSCR", kPrograms,
     {L"关闭文本窗口，回到图形。",
      L"Hides the text window and goes back to the drawing."},
     {L"在窗口界面中也可按 F2；执行其他命令时可用 'GRAPHSCR。在终端中只有一个屏幕，不作切换。",
      L"In the window interface F2 does the same; 'GRAPHSCR can be used during other commands. A terminal has one screen only, so "
      L"nothing changes there."},
     L"GRAPHSCR"},
    {L"SCRIPT", kPrograms,
     {L"执行脚本文件中的命令。",
      L"Runs the commands of a script file."},
     {L"脚本文件名，可含空格。脚本中空格和换行结束一个回答，空行为 Enter，行首的 ; 为注释，^C 为 Esc。\n脚本须为 UTF-8 编码。脚本可以执行别的脚本；"
      L"只有在最后一行才能重新执行自己，否则会被拒绝。",
      L"File name, which may contain spaces. In a script, a space or a line end ends an answer, an empty line is Enter, ; at the "
      L"start of a line marks a comment, and ^C is Esc.\nScripts must be UTF-8 text. A script can run other scripts; it can run "
      L"itself again only on its last line."},
     L"SCRIPT lights.scr"},
    {L"LOADMODULE", kPrograms,
     {L"加载模块，使它的命令可用。",
      L"Loads a module and makes its commands available."},
     {L"模块的文件名或路径；只给名称时在模块文件夹中查找。? 列出已加载的模块。",
      L"File name or path; a name without a path is searched for in the module folders. ? lists the loaded modules."},
     L"LOADMODULE light"},
    {L"HELP", kPrograms,
     {L"列出所有命令，或说明一个命令。",
      L"Lists all commands, or describes one."},
     {L"命令名；Enter 列出所有命令。执行其他命令时可用 'HELP。",
      L"Command name; Enter lists all commands. 'HELP can be used during other commands."},
     L"HELP LINE"},
};
// clang-format on

} // namespace

std::span<const HelpPage> helpPages() { return kPages; }

} // namespace quor::texts
