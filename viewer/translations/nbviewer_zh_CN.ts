<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Manipulator</name>
    <message>
        <source>Change Perspective Match lines of camera %1</source>
        <translation>修改相机 %1 的透视匹配线</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit Texture Projection</source>
        <translation>编辑纹理投影</translation>
    </message>
    <message>
        <source>Place Texture</source>
        <translation>放置纹理</translation>
    </message>
    <message>
        <source>Set Texture</source>
        <translation>设置纹理</translation>
    </message>
    <message>
        <source>Edit Texture Settings</source>
        <translation>编辑纹理设置</translation>
    </message>
    <message>
        <source>Switch Texture Projection</source>
        <translation>切换纹理投影</translation>
    </message>
    <message>
        <source>Turn scene plates</source>
        <translation>旋转场景板</translation>
    </message>
    <message>
        <source>Scale scene plates</source>
        <translation>缩放场景板</translation>
    </message>
    <message>
        <source>Move scene plates</source>
        <translation>移动场景板</translation>
    </message>
    <message>
        <source>Add scene plate</source>
        <translation>添加场景板</translation>
    </message>
    <message>
        <source>Delete scene plates</source>
        <translation>删除场景板</translation>
    </message>
    <message>
        <source>Rename scene plate</source>
        <translation>重命名场景板</translation>
    </message>
    <message>
        <source>Anchor scene plates</source>
        <translation>锚定场景板</translation>
    </message>
    <message>
        <source>Restack scene plates</source>
        <translation>调整场景板次序</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Move Rotate Pivot</source>
        <translation>移动旋转枢轴</translation>
    </message>
    <message>
        <source>Move Scale Pivot</source>
        <translation>移动缩放枢轴</translation>
    </message>
    <message>
        <source>Turn Rotate Pivot</source>
        <translation>转动旋转枢轴</translation>
    </message>
    <message>
        <source>Show or hide</source>
        <translation>显示或隐藏</translation>
    </message>
    <message>
        <source>Lock or unlock</source>
        <translation>锁定或解锁</translation>
    </message>
    <message>
        <source>Scene plates to the front or back</source>
        <translation>场景板置前或置后</translation>
    </message>
    <message>
        <source>Show or hide scene plates</source>
        <translation>显示或隐藏场景板</translation>
    </message>
    <message>
        <source>Opacity of scene plates</source>
        <translation>场景板不透明度</translation>
    </message>
    <message>
        <source>Size of scene plates</source>
        <translation>场景板大小</translation>
    </message>
    <message>
        <source>Colour of scene plates</source>
        <translation>场景板颜色</translation>
    </message>
    <message>
        <source>Material for pictures</source>
        <translation>图片材质</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Align scene plates</source>
        <translation>对齐场景牌</translation>
    </message>
    <message>
        <source>Distribute scene plates</source>
        <translation>分布场景牌</translation>
    </message>
    <message>
        <source>Duplicate scene plates</source>
        <translation>复制场景牌</translation>
    </message>
    <message>
        <source>Change text</source>
        <translation>更改文字</translation>
    </message>
</context>
<context>
    <name>nbForegroundTextContext</name>
    <message>
        <source>Center (</source>
        <translation>中心 (</translation>
    </message>
    <message>
        <source>Height (</source>
        <translation>高度 (</translation>
    </message>
    <message>
        <source>Radius (</source>
        <translation>半径 (</translation>
    </message>
    <message>
        <source>Scale (</source>
        <translation>缩放 (</translation>
    </message>
    <message>
        <source>Translation (</source>
        <translation>平移 (</translation>
    </message>
    <message>
        <source>Rotation (</source>
        <translation>旋转 (</translation>
    </message>
    <message>
        <source>Rotate Pivot (</source>
        <translation>旋转枢轴 (</translation>
    </message>
    <message>
        <source>Scale Pivot (</source>
        <translation>缩放枢轴 (</translation>
    </message>
    <message>
        <source>Set Texture Center Position</source>
        <translation>设置纹理中心位置</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>%1 deg</source>
        <translation>%1 度</translation>
    </message>
    <message>
        <source>%1 along %2</source>
        <translation>沿 %2 %1</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 像素</translation>
    </message>
</context>
<context>
    <name>viewer</name>
    <message>
        <source>Add clip plane</source>
        <translation>添加裁剪平面</translation>
    </message>
    <message>
        <source>Remove clip plane</source>
        <translation>移除裁剪平面</translation>
    </message>
    <message>
        <source>there is nothing to be cut</source>
        <translation>没有可裁剪的内容</translation>
    </message>
    <message>
        <source>select a clip plane first</source>
        <translation>请先选择一个裁剪平面</translation>
    </message>
    <message>
        <source>Centre pivot</source>
        <translation>枢轴居中</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n triangles without a finite place were left out</source>
        <translation>
            <numerusform>%1：已略去 %n 个位置非有限的三角形</numerusform>
        </translation>
    </message>
    <message>
        <source>cannot be read as a model: its header has no end</source>
        <translation>无法作为模型读取：文件头没有结尾</translation>
    </message>
    <message>
        <source>cannot be read as a model: it has faces without corners</source>
        <translation>无法作为模型读取：存在没有顶点的面</translation>
    </message>
    <message>
        <source>reading was stopped</source>
        <translation>读取已停止</translation>
    </message>
    <message>
        <source>cannot be read as a model: %1</source>
        <translation>无法作为模型读取：%1</translation>
    </message>
    <message>
        <source>holds no surface</source>
        <translation>不含任何表面</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation>没有选择任何对象</translation>
    </message>
    <message>
        <source>the selected object is locked or cannot take this value</source>
        <translation>所选对象已锁定或不能接受此值</translation>
    </message>
    <message>
        <source>an orthographic view cannot be matched: switch to perspective</source>
        <translation>正交视图无法匹配：请切换到透视</translation>
    </message>
    <message>
        <source>the camera is locked</source>
        <translation>相机已锁定</translation>
    </message>
    <message>
        <source>Lay lines as seen</source>
        <translation>按所见放置线</translation>
    </message>
    <message>
        <source>Change perspective match</source>
        <translation>修改透视匹配</translation>
    </message>
    <message>
        <source>Change magnifier</source>
        <translation>修改放大镜</translation>
    </message>
    <message>
        <source>Orientation and field of view follow the lines.</source>
        <translation>方向和视场随匹配线变化。</translation>
    </message>
    <message>
        <source>The orientation follows the lines; the field of view is kept.</source>
        <translation>方向随匹配线变化；视场保持不变。</translation>
    </message>
    <message>
        <source>An orthographic view cannot be matched: switch to perspective.</source>
        <translation>正交视图无法匹配：请切换到透视。</translation>
    </message>
    <message>
        <source>A line is too short: the camera stays.</source>
        <translation>有一条线太短：相机保持不动。</translation>
    </message>
    <message>
        <source>Two lines of an axis lie on each other: the camera stays.</source>
        <translation>同一轴的两条线重合：相机保持不动。</translation>
    </message>
    <message>
        <source>The lines contradict each other: the camera stays.</source>
        <translation>各线相互矛盾：相机保持不动。</translation>
    </message>
    <message>
        <source>There is no camera to be matched.</source>
        <translation>没有可匹配的相机。</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>图片 (%1)</translation>
    </message>
    <message>
        <source>no scene plate is selected</source>
        <translation>没有选择场景板</translation>
    </message>
    <message>
        <source>expected a text that fits into a picture</source>
        <translation>需要能放入图片的文字</translation>
    </message>
    <message>
        <source>expected a name that no other plate has</source>
        <translation>需要与其他场景板不同的名称</translation>
    </message>
    <message>
        <source>there is no further plate on this side</source>
        <translation>这一侧没有更多场景板</translation>
    </message>
    <message numerus="yes">
        <source>%n scene plates</source>
        <translation>
            <numerusform>%n 块场景板</numerusform>
        </translation>
    </message>
    <message>
        <source>No scene plate selected</source>
        <translation>未选择场景板</translation>
    </message>
    <message>
        <source>Scene plate: %1</source>
        <translation>场景板：%1</translation>
    </message>
    <message>
        <source>there is no picture on the selected object</source>
        <translation>所选对象上没有图片</translation>
    </message>
    <message>
        <source>Select an object to put a picture on it.</source>
        <translation>选择一个对象以在其上放置图片。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no surface of its own: select a part of it.</source>
        <translation>“%1”没有自己的表面：请选择它的一部分。</translation>
    </message>
    <message>
        <source>%1: there is no object to drop it on</source>
        <translation>%1：此处没有可放置的对象</translation>
    </message>
    <message>
        <source>Place picture</source>
        <translation>放置图片</translation>
    </message>
    <message>
        <source>the surface with the picture is not there</source>
        <translation>此处没有带图片的表面</translation>
    </message>
    <message>
        <source>a clip plane has lost its frame</source>
        <translation>裁剪平面失去了其框架</translation>
    </message>
    <message>
        <source>%1: cannot be saved: %2</source>
        <translation>%1：无法保存：%2</translation>
    </message>
    <message>
        <source>a picture that came from no file cannot be saved</source>
        <translation>并非来自文件的图片无法保存</translation>
    </message>
    <message>
        <source>is no picture</source>
        <translation>不是图片</translation>
    </message>
    <message>
        <source>there is no model &quot;%1&quot;</source>
        <translation>没有模型“%1”</translation>
    </message>
    <message>
        <source>expected &quot;%1&quot; in the model, which has &quot;%2&quot; there</source>
        <translation>模型中此处应为“%1”，而实际为“%2”</translation>
    </message>
    <message>
        <source>the model has no object &quot;%1&quot; at &quot;%2&quot;</source>
        <translation>模型在“%2”处没有对象“%1”</translation>
    </message>
    <message>
        <source>the model has no surface &quot;%1&quot; there</source>
        <translation>模型在此处没有表面“%1”</translation>
    </message>
    <message>
        <source>%1: too large</source>
        <translation>%1：过大</translation>
    </message>
    <message>
        <source>%1: not while something is being dragged</source>
        <translation>%1：正在拖动时不能执行</translation>
    </message>
    <message>
        <source>the picture has %1 x %2 pixels, which would take more than %3 MiB</source>
        <translation>图片有 %1 x %2 像素，将占用超过 %3 MiB</translation>
    </message>
    <message>
        <source>%1: cannot be written</source>
        <translation>%1：无法写入</translation>
    </message>
    <message>
        <source>is not on this machine</source>
        <translation>不在这台计算机上</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>没有该文件夹</translation>
    </message>
    <message>
        <source>cannot be read as a model: what was read of it is damaged</source>
        <translation>无法作为模型读取：读到的内容已损坏</translation>
    </message>
    <message>
        <source>cannot be read as a model: reading it ended with a fault</source>
        <translation>无法作为模型读取：读取时出错</translation>
    </message>
    <message>
        <source>cannot be read as a model: it would take too much memory</source>
        <translation>无法作为模型读取：占用内存过多</translation>
    </message>
    <message>
        <source>has no end: reading was given up</source>
        <translation>没有尽头：已放弃读取</translation>
    </message>
    <message>
        <source>the program that reads models cannot be started: %1</source>
        <translation>无法启动读取模型的程序：%1</translation>
    </message>
    <message>
        <source>cannot be read as a model: %1 is no kind that is known</source>
        <translation>无法作为模型读取：%1 不是已知的类型</translation>
    </message>
    <message>
        <source>it has places too far away</source>
        <translation>其中有过远的位置</translation>
    </message>
    <message>
        <source>its nodes are nested too deeply</source>
        <translation>其节点嵌套过深</translation>
    </message>
    <message>
        <source>Models, scenes and pictures (%1);;All files (*)</source>
        <translation>模型、场景和图片 (%1);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Move line %1</source>
        <translation>移动直线 %1</translation>
    </message>
    <message>
        <source>Move end of line %1</source>
        <translation>移动直线 %1 的端点</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Move along x</source>
        <translation>沿 x 移动</translation>
    </message>
    <message>
        <source>Move along y</source>
        <translation>沿 y 移动</translation>
    </message>
    <message>
        <source>Move along z</source>
        <translation>沿 z 移动</translation>
    </message>
    <message>
        <source>Scale along x</source>
        <translation>沿 x 缩放</translation>
    </message>
    <message>
        <source>Scale along y</source>
        <translation>沿 y 缩放</translation>
    </message>
    <message>
        <source>Scale along z</source>
        <translation>沿 z 缩放</translation>
    </message>
    <message>
        <source>Turn about x</source>
        <translation>绕 x 旋转</translation>
    </message>
    <message>
        <source>Turn about y</source>
        <translation>绕 y 旋转</translation>
    </message>
    <message>
        <source>Turn about z</source>
        <translation>绕 z 旋转</translation>
    </message>
    <message>
        <source>Move in the plane of x and y</source>
        <translation>在 x 和 y 平面内移动</translation>
    </message>
    <message>
        <source>Move in the plane of x and z</source>
        <translation>在 x 和 z 平面内移动</translation>
    </message>
    <message>
        <source>Move in the plane of y and z</source>
        <translation>在 y 和 z 平面内移动</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Scale from a corner</source>
        <translation>从角缩放</translation>
    </message>
    <message>
        <source>Scale from an edge</source>
        <translation>从边缩放</translation>
    </message>
    <message>
        <source>Scale the depth</source>
        <translation>缩放深度</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>右键</translation>
    </message>
    <message>
        <source>Orbit; a click: menu</source>
        <translation>环绕；单击：菜单</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>中键</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>平移</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Zoom towards the pointer</source>
        <translation>朝指针缩放</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>单击</translation>
    </message>
    <message>
        <source>Select; Ctrl or Shift: further objects</source>
        <translation>选择；Ctrl 或 Shift：更多对象</translation>
    </message>
    <message>
        <source>Drag from empty space</source>
        <translation>从空白处拖动</translation>
    </message>
    <message>
        <source>Select what lies in the rectangle</source>
        <translation>选择矩形内的对象</translation>
    </message>
    <message>
        <source>Ctrl in a drag</source>
        <translation>拖动时按 Ctrl</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>捕捉</translation>
    </message>
    <message>
        <source>Shift in a drag</source>
        <translation>拖动时按 Shift</translation>
    </message>
    <message>
        <source>Slow down</source>
        <translation>减速</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Take the drag back, leave a mode</source>
        <translation>取消拖动，退出模式</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked</source>
        <translation>“%1”已锁定</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>a clip plane cannot be duplicated</source>
        <translation>剖切平面不能复制</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>a name has at least one letter</source>
        <translation>名称至少要有一个字符</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Field of view ±%1°.</source>
        <translation>视角 ±%1°。</translation>
    </message>
    <message>
        <source>Orientation ±%1°.</source>
        <translation>方向 ±%1°。</translation>
    </message>
    <message>
        <source>Line %1 is off by %2 pixels.</source>
        <translation>线 %1 偏离 %2 像素。</translation>
    </message>
    <message>
        <source>The lines of %1 are almost parallel in the picture, so it hardly tells the field of view: use lines of a third axis, or set the lens.</source>
        <translation>%1 的线在图片中几乎平行，因此难以确定视角：请使用第三个轴的线，或设置镜头。</translation>
    </message>
    <message>
        <source>No camera sees right angles so: check which lines belong together.</source>
        <translation>没有相机会这样看到直角：请检查哪些线属于同一轴。</translation>
    </message>
    <message>
        <source>Turn axes about %1</source>
        <translation>绕 %1 转动坐标轴</translation>
    </message>
    <message>
        <source>Place camera</source>
        <translation>放置相机</translation>
    </message>
    <message>
        <source>line %1 tells no place: it must run along its axis and not be a point</source>
        <translation>线 %1 无法确定位置：它必须沿其轴线且不能是一个点</translation>
    </message>
    <message>
        <source>Set lens</source>
        <translation>设置镜头</translation>
    </message>
    <message>
        <source>%1: %2 px</source>
        <comment>line, how far it is off</comment>
        <translation>%1：%2 像素</translation>
    </message>
    <message>
        <source>at least three scene plates are needed</source>
        <translation>至少需要三个场景牌</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>锚点</translation>
    </message>
    <message>
        <source>no text is selected</source>
        <translation>未选择文字</translation>
    </message>
    <message>
        <source>Move in the plane of the screen</source>
        <translation>在屏幕平面内移动</translation>
    </message>
    <message>
        <source>Turn about the view axis</source>
        <translation>绕视线轴旋转</translation>
    </message>
    <message>
        <source>Turn freely</source>
        <translation>自由旋转</translation>
    </message>
    <message>
        <source>Scale along x and y</source>
        <translation>沿 x 和 y 缩放</translation>
    </message>
    <message>
        <source>Scale along x and z</source>
        <translation>沿 x 和 z 缩放</translation>
    </message>
    <message>
        <source>Scale along y and z</source>
        <translation>沿 y 和 z 缩放</translation>
    </message>
    <message>
        <source>%1: is there already and belongs to another file</source>
        <translation>%1：已存在，并属于另一个文件</translation>
    </message>
    <message>
        <source>%1: models are exported to %2</source>
        <translation>%1：模型可导出为 %2</translation>
    </message>
    <message>
        <source>there is nothing to export</source>
        <translation>没有可导出的内容</translation>
    </message>
    <message>
        <source>there is no photograph</source>
        <translation>没有照片</translation>
    </message>
    <message>
        <source>Fit photograph</source>
        <translation>适配照片</translation>
    </message>
    <message>
        <source>line %1 names a vertex that there is not</source>
        <translation>第 %1 行引用了不存在的顶点</translation>
    </message>
    <message>
        <source>the picture does not lie so that this could be done</source>
        <translation>图片的放置方式不允许此操作</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>拖动图片</translation>
    </message>
    <message>
        <source>A click places the handles; Esc ends</source>
        <translation>单击放置手柄；Esc 结束</translation>
    </message>
    <message>
        <source>A click places the picture, the wheel turns it (%1°), Ctrl and the wheel size it (%2%); Shift slows, Esc ends</source>
        <translation>单击放置图片，滚轮旋转（%1°），Ctrl 加滚轮缩放（%2%）；Shift 减速，Esc 结束</translation>
    </message>
    <message>
        <source>The view is held: &quot;Hold the view&quot; (Shift+H) lets it go</source>
        <translation>视图已锁定：“锁定视图”(Shift+H) 可解除</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>（无名称）</translation>
    </message>
</context>
<context>
    <name>viewer::AboutBox</name>
    <message>
        <source>nbManipulator %1</source>
        <translation>nbManipulator %1</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1（构建时为 %2）</translation>
    </message>
    <message>
        <source>OpenGL: %1</source>
        <translation>OpenGL：%1</translation>
    </message>
    <message>
        <source>not started</source>
        <translation>未启动</translation>
    </message>
    <message>
        <source>Scene graph: bundled, interface of version %1.%2</source>
        <translation>场景图：内置，接口版本 %1.%2</translation>
    </message>
    <message>
        <source>Picking: %1</source>
        <translation>拾取：%1</translation>
    </message>
    <message>
        <source>Model files: %1</source>
        <translation>模型文件：%1</translation>
    </message>
    <message>
        <source>System: %1, %2</source>
        <translation>系统：%1，%2</translation>
    </message>
    <message>
        <source>About nbviewer</source>
        <translation>关于 nbviewer</translation>
    </message>
    <message>
        <source>Interactive manipulators for 3D scenes</source>
        <translation>三维场景的交互式操纵器</translation>
    </message>
</context>
<context>
    <name>viewer::AxesCorner</name>
    <message>
        <source>Axes of the world</source>
        <translation>世界坐标轴</translation>
    </message>
    <message>
        <source>Click on an axis to look along it</source>
        <translation>单击坐标轴即沿其观察</translation>
    </message>
</context>
<context>
    <name>viewer::Language</name>
    <message>
        <source>As the desktop</source>
        <translation>跟随桌面</translation>
    </message>
</context>
<context>
    <name>viewer::LogPanel</name>
    <message>
        <source>Detail</source>
        <translation>细节</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>Sessions (*.json)</source>
        <translation>会话 (*.json)</translation>
    </message>
    <message>
        <source>View of the scene</source>
        <translation>场景视图</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>保存图片</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.bmp)</source>
        <translation>图片 (*.png *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>%1: drop pictures on an object</source>
        <translation>%1：请将图片拖放到对象上</translation>
    </message>
    <message>
        <source>Replay session</source>
        <translation>回放会话</translation>
    </message>
    <message>
        <source>%1: a scene can only be opened by itself</source>
        <translation>%1：场景只能单独打开</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手册</translation>
    </message>
    <message>
        <source>The manual is not installed</source>
        <translation>未安装手册</translation>
    </message>
    <message>
        <source>%1 has been written</source>
        <translation>%1 已写入</translation>
    </message>
</context>
<context>
    <name>viewer::MaterialPanel</name>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Turn, °</source>
        <translation>旋转，°</translation>
    </message>
    <message>
        <source>Half size</source>
        <translation>半尺寸</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>横向偏移</translation>
    </message>
    <message>
        <source>Offset upwards</source>
        <translation>纵向偏移</translation>
    </message>
    <message>
        <source>Repeat across</source>
        <translation>横向重复</translation>
    </message>
    <message>
        <source>Repeat upwards</source>
        <translation>纵向重复</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中心</translation>
    </message>
    <message>
        <source>Width of tread</source>
        <translation>胎面宽度</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>Part around</source>
        <translation>周向比例</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>无图片</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>分量</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>From one side</source>
        <translation>从一面</translation>
    </message>
    <message>
        <source>Texture coordinates</source>
        <translation>纹理坐标</translation>
    </message>
    <message>
        <source>From three sides</source>
        <translation>从三面</translation>
    </message>
    <message>
        <source>Around a tire</source>
        <translation>环绕轮胎</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>投影</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>转动</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Turn + scale</source>
        <translation>转动 + 缩放</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>By click</source>
        <translation>点击</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>放置</translation>
    </message>
    <message>
        <source>Handle size</source>
        <translation>手柄大小</translation>
    </message>
    <message>
        <source>Keep aspect</source>
        <translation>保持宽高比</translation>
    </message>
    <message>
        <source>Turn rings seen edge-on</source>
        <translation>可转动侧视圆环</translation>
    </message>
    <message>
        <source>Fit to the object</source>
        <translation>适合对象</translation>
    </message>
    <message>
        <source>End in depth</source>
        <translation>限制深度</translation>
    </message>
    <message>
        <source>Picture is a mask</source>
        <translation>图片作为遮罩</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>反转</translation>
    </message>
    <message>
        <source>Show projection</source>
        <translation>显示投影</translation>
    </message>
    <message>
        <source>Show its depth</source>
        <translation>显示其深度</translation>
    </message>
    <message>
        <source>How far one sees through the shown projection</source>
        <translation>所示投影的透明程度</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>透明度</translation>
    </message>
    <message>
        <source>Choose picture</source>
        <translation>选择图片</translation>
    </message>
    <message>
        <source>On &quot;%1&quot;</source>
        <translation>位于“%1”</translation>
    </message>
    <message>
        <source>Clicks on the object place the picture, or its handles, until Esc</source>
        <translation>单击对象以放置图片或其手柄，按 Esc 结束</translation>
    </message>
    <message>
        <source>Turn about the handles</source>
        <translation>绕手柄旋转</translation>
    </message>
    <message>
        <source>Grab the picture</source>
        <translation>抓取图片</translation>
    </message>
    <message>
        <source>Pixels per unit</source>
        <translation>每单位像素</translation>
    </message>
    <message>
        <source>Fit to the face</source>
        <translation>适合所在面</translation>
    </message>
    <message>
        <source>Fit as seen</source>
        <translation>按视图适合</translation>
    </message>
    <message>
        <source>Align to the surface</source>
        <translation>对齐到表面</translation>
    </message>
    <message>
        <source>Align upright</source>
        <translation>对齐为直立</translation>
    </message>
    <message>
        <source>Align to the view</source>
        <translation>对齐到视图</translation>
    </message>
    <message>
        <source>Quarter turn left</source>
        <translation>左转四分之一圈</translation>
    </message>
    <message>
        <source>Quarter turn right</source>
        <translation>右转四分之一圈</translation>
    </message>
    <message>
        <source>Flip across</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Flip upwards</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Own aspect</source>
        <translation>原始宽高比</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>排列</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no texture coordinates of its own: it has those of a box</source>
        <translation>“%1”没有自己的纹理坐标：使用盒形坐标</translation>
    </message>
    <message>
        <source>On faces up to, °</source>
        <translation>面的角度上限, °</translation>
    </message>
    <message>
        <source>Shown up to, °|Fading over, °</source>
        <translation>显示至, °|渐隐范围, °</translation>
    </message>
</context>
<context>
    <name>viewer::NumberBox</name>
    <message>
        <source>&quot;%1&quot; is not complete</source>
        <translation>“%1”不完整</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood from &quot;%2&quot; on</source>
        <translation>“%1”从“%2”起无法理解</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: &quot;%2&quot; is no unit of this number</source>
        <translation>“%1”：“%2”不是此数值的单位</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number that can be had</source>
        <translation>“%1”得不出数值</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not lie between %2 and %3</source>
        <translation>“%1”不在 %2 和 %3 之间</translation>
    </message>
</context>
<context>
    <name>viewer::ObjectPanel</name>
    <message>
        <source>Translation</source>
        <translation>平移</translation>
    </message>
    <message>
        <source>Rotation, °</source>
        <translation>旋转，°</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Rotate pivot</source>
        <translation>旋转枢轴</translation>
    </message>
    <message>
        <source>Scale pivot</source>
        <translation>缩放枢轴</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可见</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>保持比例</translation>
    </message>
</context>
<context>
    <name>viewer::PanelDocks</name>
    <message>
        <source>As opened</source>
        <translation>打开时</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材质</translation>
    </message>
    <message>
        <source>Perspective match</source>
        <translation>透视匹配</translation>
    </message>
    <message>
        <source>Scene plates</source>
        <translation>场景板</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>viewer::PerspectiveMatchPanel</name>
    <message>
        <source>Match mode</source>
        <translation>匹配模式</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Camera locked</source>
        <translation>相机锁定</translation>
    </message>
    <message>
        <source>Lines used</source>
        <translation>使用的线</translation>
    </message>
    <message>
        <source>X, Y and Z</source>
        <translation>X、Y 和 Z</translation>
    </message>
    <message>
        <source>X and Y</source>
        <translation>X 和 Y</translation>
    </message>
    <message>
        <source>X and Z</source>
        <translation>X 和 Z</translation>
    </message>
    <message>
        <source>Y and Z</source>
        <translation>Y 和 Z</translation>
    </message>
    <message>
        <source>Field of view</source>
        <translation>视场</translation>
    </message>
    <message>
        <source>From the lines</source>
        <translation>由线确定</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Lay lines as seen</source>
        <translation>按所见放置线</translation>
    </message>
    <message>
        <source>Turn camera</source>
        <translation>转动相机</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Over the models</source>
        <translation>覆盖模型</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>放大镜</translation>
    </message>
    <message>
        <source>Line %1, start, across</source>
        <translation>线 %1，起点，横向</translation>
    </message>
    <message>
        <source>Line %1, start, up</source>
        <translation>线 %1，起点，纵向</translation>
    </message>
    <message>
        <source>Line %1, end, across</source>
        <translation>线 %1，终点，横向</translation>
    </message>
    <message>
        <source>Line %1, end, up</source>
        <translation>线 %1，终点，纵向</translation>
    </message>
    <message>
        <source>Open photograph</source>
        <translation>打开照片</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 Field of view %2°.</source>
        <comment>sentence, number</comment>
        <translation>%1视场 %2°。</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>Sensor width</source>
        <translation>传感器宽度</translation>
    </message>
    <message>
        <source>Lens, sensor (mm)</source>
        <translation>镜头、传感器（毫米）</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>A line from the origin, its length</source>
        <translation>始于原点的线及其长度</translation>
    </message>
    <message>
        <source>Move camera</source>
        <translation>移动相机</translation>
    </message>
    <message>
        <source>Turn axes about</source>
        <translation>绕轴转动</translation>
    </message>
    <message>
        <source>Height of the view</source>
        <translation>视图高度</translation>
    </message>
    <message>
        <source>Width of the view</source>
        <translation>视图宽度</translation>
    </message>
    <message>
        <source>Fills</source>
        <translation>填满</translation>
    </message>
    <message>
        <source>Lines snap to edges (Alt: not)</source>
        <translation>线吸附到边缘（Alt：不吸附）</translation>
    </message>
</context>
<context>
    <name>viewer::PlatesPanel</name>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Select and edit plates in the view</source>
        <translation>在视图中选择和编辑场景板</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>图片…</translation>
    </message>
    <message>
        <source>Add a picture from a file</source>
        <translation>从文件添加图片</translation>
    </message>
    <message>
        <source>Colour…</source>
        <translation>颜色…</translation>
    </message>
    <message>
        <source>Add a plate of plain colour</source>
        <translation>添加纯色场景板</translation>
    </message>
    <message>
        <source>Bring forward</source>
        <translation>前移一层</translation>
    </message>
    <message>
        <source>Send backward</source>
        <translation>后移一层</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Scene plates, the foremost first</source>
        <translation>场景板，最前面的在先</translation>
    </message>
    <message>
        <source>In front of the scene</source>
        <translation>场景之前</translation>
    </message>
    <message>
        <source>Behind the scene</source>
        <translation>场景之后</translation>
    </message>
    <message>
        <source>Lies</source>
        <translation>所在</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>The place of the window that the plate follows</source>
        <translation>场景板跟随的窗口位置</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>锚点</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Rotation, °</source>
        <translation>旋转，°</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Snap to edges and centre</source>
        <translation>吸附到边缘和中心</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Height of a line, of the view&apos;s</source>
        <translation>行高占视图高度的比例</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Add the text as a plate</source>
        <translation>将文字添加为场景板</translation>
    </message>
    <message>
        <source>Add picture</source>
        <translation>添加图片</translation>
    </message>
    <message>
        <source>Align left</source>
        <translation>左对齐</translation>
    </message>
    <message>
        <source>Align centres across</source>
        <translation>水平居中对齐</translation>
    </message>
    <message>
        <source>Align right</source>
        <translation>右对齐</translation>
    </message>
    <message>
        <source>Align top</source>
        <translation>顶部对齐</translation>
    </message>
    <message>
        <source>Align centres down</source>
        <translation>垂直居中对齐</translation>
    </message>
    <message>
        <source>Align bottom</source>
        <translation>底部对齐</translation>
    </message>
    <message>
        <source>Equal gaps across</source>
        <translation>水平等距</translation>
    </message>
    <message>
        <source>Equal gaps down</source>
        <translation>垂直等距</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Arrange plates</source>
        <translation>排列场景牌</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Change the text of the selected plate</source>
        <translation>更改所选板的文字</translation>
    </message>
</context>
<context>
    <name>viewer::SceneFileActions</name>
    <message>
        <source>Scenes (*.nbscene)</source>
        <translation>场景 (*.nbscene)</translation>
    </message>
    <message>
        <source>Save scene</source>
        <translation>保存场景</translation>
    </message>
    <message>
        <source>The scene</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>%1 has been edited. Save it?</source>
        <translation>%1已被编辑。要保存吗？</translation>
    </message>
    <message>
        <source>Edits that are not saved will be lost.</source>
        <translation>未保存的编辑将会丢失。</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>The program ended unexpectedly. Edits up to %1 have been kept. Recover them?</source>
        <translation>程序意外结束。截至 %1 的编辑已保留。要恢复吗？</translation>
    </message>
    <message>
        <source>%1 has been changed by another program. Replace it?</source>
        <translation>%1 已被其他程序更改。要替换它吗？</translation>
    </message>
    <message>
        <source>%1: has been changed by another program</source>
        <translation>%1：已被其他程序更改</translation>
    </message>
    <message>
        <source>What is neither recovered nor discarded is offered again at the next start.</source>
        <translation>既未恢复也未丢弃的内容将在下次启动时再次提供。</translation>
    </message>
</context>
<context>
    <name>viewer::ScenePanel</name>
    <message>
        <source>Objects of the scene</source>
        <translation>场景中的对象</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>已锁定</translation>
    </message>
</context>
<context>
    <name>viewer::Settings</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Orbiting</source>
        <translation>环绕</translation>
    </message>
    <message>
        <source>Right button; middle pans</source>
        <translation>右键；中键平移</translation>
    </message>
    <message>
        <source>Middle button; with Shift pans</source>
        <translation>中键；按住 Shift 平移</translation>
    </message>
    <message>
        <source>Grid on the ground</source>
        <translation>地面网格</translation>
    </message>
    <message>
        <source>Coarse while the view moves</source>
        <translation>视图移动时降低画质</translation>
    </message>
    <message>
        <source>Edits are kept every, s</source>
        <translation>自动保留间隔，秒</translation>
    </message>
    <message>
        <source>Most that a picture may take, MiB</source>
        <translation>单张图片内存上限，MiB</translation>
    </message>
    <message>
        <source>Colours of handles</source>
        <translation>手柄颜色</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>柔和</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>For any colour vision</source>
        <translation>适合各类色觉</translation>
    </message>
    <message>
        <source>Handles fade that are seen end-on</source>
        <translation>正对视线的手柄淡出</translation>
    </message>
    <message>
        <source>Draw what a drag has come to</source>
        <translation>绘制拖动轨迹</translation>
    </message>
    <message>
        <source>Snap to corners and edges of objects</source>
        <translation>吸附到对象的角和边</translation>
    </message>
    <message>
        <source>Size of the gizmo</source>
        <translation>操纵器大小</translation>
    </message>
    <message>
        <source>Step of translation</source>
        <translation>平移步长</translation>
    </message>
    <message>
        <source>Step of rotation, °</source>
        <translation>旋转步长，°</translation>
    </message>
    <message>
        <source>Step of scale</source>
        <translation>缩放步长</translation>
    </message>
    <message>
        <source>Backs of rings are dim</source>
        <translation>圆环背面变暗</translation>
    </message>
    <message>
        <source>Letters at the tips of handles</source>
        <translation>手柄末端显示字母</translation>
    </message>
    <message>
        <source>Hit handles from farther with pen or finger</source>
        <translation>用笔或手指时从更远处选中手柄</translation>
    </message>
    <message>
        <source>A handle moves in the plane of the screen</source>
        <translation>手柄在屏幕平面内移动</translation>
    </message>
    <message>
        <source>A ring turns about the view axis</source>
        <translation>圆环绕视线轴旋转</translation>
    </message>
    <message>
        <source>A disc turns freely</source>
        <translation>圆盘自由旋转</translation>
    </message>
    <message>
        <source>Planes scale in two axes</source>
        <translation>平面沿两个轴缩放</translation>
    </message>
    <message>
        <source>Handles stand on the viewer&apos;s side</source>
        <translation>手柄位于观察者一侧</translation>
    </message>
    <message>
        <source>Axes of the handles</source>
        <translation>控制柄的轴</translation>
    </message>
    <message>
        <source>World</source>
        <translation>世界</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Object above</source>
        <translation>上级对象</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>Several objects turn and scale</source>
        <translation>多个对象旋转和缩放</translation>
    </message>
    <message>
        <source>Each about its own pivot</source>
        <translation>各绕自身枢轴</translation>
    </message>
    <message>
        <source>About the first one&apos;s pivot</source>
        <translation>绕第一个对象的枢轴</translation>
    </message>
    <message>
        <source>About the middle of their pivots</source>
        <translation>绕各枢轴的中点</translation>
    </message>
    <message>
        <source>Length of arrows in pixels, 0 by that size</source>
        <translation>箭头长度（像素），0 表示按上述大小</translation>
    </message>
</context>
<context>
    <name>viewer::SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>viewer::StatusLine</name>
    <message>
        <source>Nothing selected</source>
        <translation>未选择</translation>
    </message>
    <message numerus="yes">
        <source>Selected: %1 and %n more</source>
        <translation>
            <numerusform>已选：%1 及另外 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>已选：%1</translation>
    </message>
    <message>
        <source>Under the pointer: %1</source>
        <translation>指针所指：%1</translation>
    </message>
    <message>
        <source>Progress of loading</source>
        <translation>加载进度</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>停止加载</translation>
    </message>
    <message>
        <source>Stop loading (Esc); the scene stays as it is</source>
        <translation>停止加载 (Esc)；场景保持不变</translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangles</source>
        <translation>
            <numerusform>%Ln 个三角形</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading %1: %p%</source>
        <comment>%p is the number</comment>
        <translation>正在读取 %1：%p%</translation>
    </message>
    <message>
        <source>Preparing %1: %p%</source>
        <comment>%p is the number</comment>
        <translation>正在准备 %1：%p%</translation>
    </message>
    <message>
        <source>%1: Ctrl snaps, Shift slows, type a number, Esc cancels</source>
        <translation>%1：Ctrl 捕捉，Shift 减速，可输入数值，Esc 取消</translation>
    </message>
    <message>
        <source>%1: Shift slows, type a number, Esc cancels</source>
        <translation>%1：Shift 减速，可输入数值，Esc 取消</translation>
    </message>
</context>
<context>
    <name>viewer::ToolBars</name>
    <message>
        <source>Files and steps</source>
        <translation>文件和步骤</translation>
    </message>
    <message>
        <source>Handles</source>
        <translation>手柄</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>会话</translation>
    </message>
    <message>
        <source>Manipulators</source>
        <translation>操纵器</translation>
    </message>
</context>
<context>
    <name>viewer::ViewWidget</name>
    <message>
        <source>the view cannot be drawn: %1</source>
        <translation>无法绘制视图：%1</translation>
    </message>
    <message>
        <source>%1 ms, %2 draw calls, %L3 triangles</source>
        <translation>%1 毫秒，%2 次绘制调用，%L3 个三角形</translation>
    </message>
    <message>
        <source>%1 ms, %2 draw calls, %L3 triangles, scene image reused</source>
        <translation>%1 毫秒，%2 次绘制调用，%L3 个三角形，复用场景图像</translation>
    </message>
    <message>
        <source>%1; input to picture %2 ms</source>
        <translation>%1；输入到画面 %2 毫秒</translation>
    </message>
</context>
<context>
    <name>viewer::WindowActions</name>
    <message>
        <source>&amp;Front</source>
        <translation>前(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>后(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>右(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>左(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>上(&amp;T)</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>下(&amp;O)</translation>
    </message>
    <message>
        <source>Three-&amp;quarter</source>
        <translation>四分之三(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>无(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Translate</source>
        <translation>平移(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>旋转(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>缩放(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Universal</source>
        <translation>通用(&amp;U)</translation>
    </message>
    <message>
        <source>Translate, r&amp;otate</source>
        <translation>平移、旋转(&amp;O)</translation>
    </message>
    <message>
        <source>Translate, rotate, s&amp;cale</source>
        <translation>平移、旋转、缩放(&amp;C)</translation>
    </message>
    <message>
        <source>Translate, rotate about &amp;y and z</source>
        <translation>平移、绕 Y 和 Z 旋转(&amp;Y)</translation>
    </message>
    <message>
        <source>Rotate &amp;pivot</source>
        <translation>旋转枢轴(&amp;P)</translation>
    </message>
    <message>
        <source>Sca&amp;le pivot</source>
        <translation>缩放枢轴(&amp;L)</translation>
    </message>
    <message>
        <source>Clip plan&amp;e</source>
        <translation>裁剪平面(&amp;E)</translation>
    </message>
    <message>
        <source>Ca&amp;mera pivot</source>
        <translation>相机枢轴(&amp;M)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tip, shortcut</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>添加(&amp;A)…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>最近打开的文件(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;tart scene</source>
        <translation>起始场景(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>取消选择(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Frame &amp;all</source>
        <translation>显示全部(&amp;A)</translation>
    </message>
    <message>
        <source>Frame &amp;selection</source>
        <translation>显示所选(&amp;S)</translation>
    </message>
    <message>
        <source>Look &amp;from</source>
        <translation>视角(&amp;F)</translation>
    </message>
    <message>
        <source>Look from a side</source>
        <translation>从某一侧观察</translation>
    </message>
    <message>
        <source>Ort&amp;hographic</source>
        <translation>正交投影(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Z is up</source>
        <translation>Z 轴向上(&amp;Z)</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>面板(&amp;P)</translation>
    </message>
    <message>
        <source>Show &amp;effect buffer</source>
        <translation>显示效果缓冲(&amp;E)</translation>
    </message>
    <message>
        <source>Ne&amp;xt panel</source>
        <translation>下一个面板(&amp;X)</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>全屏(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Manipulator</source>
        <translation>操纵器(&amp;M)</translation>
    </message>
    <message>
        <source>Add cl&amp;ip plane</source>
        <translation>添加裁剪平面(&amp;I)</translation>
    </message>
    <message>
        <source>Remo&amp;ve clip plane</source>
        <translation>移除裁剪平面(&amp;V)</translation>
    </message>
    <message>
        <source>Match a p&amp;hotograph</source>
        <translation>匹配照片(&amp;H)</translation>
    </message>
    <message>
        <source>Edit scene pl&amp;ates</source>
        <translation>编辑场景板(&amp;A)</translation>
    </message>
    <message>
        <source>Edit pictures on o&amp;bjects</source>
        <translation>编辑对象上的图片(&amp;B)</translation>
    </message>
    <message>
        <source>Axes o&amp;f the object</source>
        <translation>对象坐标轴(&amp;F)</translation>
    </message>
    <message>
        <source>Snappin&amp;g</source>
        <translation>吸附(&amp;G)</translation>
    </message>
    <message>
        <source>Pivot bac&amp;k to the centre</source>
        <translation>枢轴回到中心(&amp;K)</translation>
    </message>
    <message>
        <source>Axes of the object instead of the world&apos;s</source>
        <translation>使用对象坐标轴而非世界坐标轴</translation>
    </message>
    <message>
        <source>Advance in steps; hold Ctrl for a while</source>
        <translation>按步长移动；按住 Ctrl 可临时切换</translation>
    </message>
    <message>
        <source>&amp;Session</source>
        <translation>会话(&amp;S)</translation>
    </message>
    <message>
        <source>Re&amp;play…</source>
        <translation>回放(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Stop replay</source>
        <translation>停止回放(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About nbviewer…</source>
        <translation>关于 nbviewer(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销 %1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做 %1(&amp;R)</translation>
    </message>
    <message>
        <source>Frame stat&amp;istics</source>
        <translation>帧统计(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Save scene</source>
        <translation>保存场景(&amp;S)</translation>
    </message>
    <message>
        <source>Save sc&amp;ene as…</source>
        <translation>场景另存为(&amp;E)…</translation>
    </message>
    <message>
        <source>Sa&amp;ve picture…</source>
        <translation>保存图片(&amp;P)…</translation>
    </message>
    <message>
        <source>Hold the vie&amp;w</source>
        <translation>锁定视图(&amp;W)</translation>
    </message>
    <message>
        <source>Hold the view: nothing moves the camera until this is lifted</source>
        <translation>锁定视图：解除前相机不会移动</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>复制(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>重命名(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Hide or show</source>
        <translation>隐藏或显示(&amp;H)</translation>
    </message>
    <message>
        <source>Loc&amp;k or unlock</source>
        <translation>锁定或解锁(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Shortcuts…</source>
        <translation>快捷键(&amp;S)…</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>设置(&amp;T)…</translation>
    </message>
    <message>
        <source>&amp;Grid on the ground</source>
        <translation>地面网格(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>手册(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>导览(&amp;T)</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>World</source>
        <translation>世界</translation>
    </message>
    <message>
        <source>E&amp;xport models…</source>
        <translation>导出模型(&amp;X)…</translation>
    </message>
    <message>
        <source>Export models</source>
        <translation>导出模型</translation>
    </message>
    <message>
        <source>Models (%1)</source>
        <translation>模型 (%1)</translation>
    </message>
    <message>
        <source>Object above</source>
        <translation>上级对象</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>屏幕</translation>
    </message>
</context>
</TS>
