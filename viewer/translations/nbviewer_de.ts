<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Manipulator</name>
    <message>
        <source>Change Perspective Match lines of camera %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Texture Projection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place Texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Texture Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Texture Projection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add scene plate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename scene plate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anchor scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restack scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Rotate Pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Scale Pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn Rotate Pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock or unlock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene plates to the front or back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show or hide scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity of scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour of scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material for pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>nbForegroundTextContext</name>
    <message>
        <source>Center (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate Pivot (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale Pivot (</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Texture Center Position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer</name>
    <message>
        <source>Add clip plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove clip plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is nothing to be cut</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>select a clip plane first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centre pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n triangles without a finite place were left out</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: picture %2 cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read as a model: its header has no end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read as a model: it has faces without corners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading was stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read as a model: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>holds no surface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read as a picture: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models and pictures (%1);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the selected object is locked or cannot take this value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an orthographic view cannot be matched: switch to perspective</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the camera is locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay lines as seen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change perspective match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change magnifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation and field of view follow the lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The orientation follows the lines; the field of view is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An orthographic view cannot be matched: switch to perspective.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A line is too short: the camera stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two lines of an axis lie on each other: the camera stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lines contradict each other: the camera stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no camera to be matched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field of view %1°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no scene plate is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a text that fits into a picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>expected a name that no other plate has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no further plate on this side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position (%1, %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n scene plates</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No scene plate selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene plate: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no picture on the selected object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an object to put a picture on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no surface of its own: select a part of it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no object to drop it on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the surface with the picture is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture turned</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offsets of x, y, z: u</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeats of x, y, z: u</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture repeats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tire centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tire height, radius, part around</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::AboutBox</name>
    <message>
        <source>nbManipulator %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OpenGL: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not started</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene graph: bundled, interface of version %1.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picking: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model files: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System: %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About nbviewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interactive manipulators for 3D scenes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::Language</name>
    <message>
        <source>As the desktop</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::LogPanel</name>
    <message>
        <source>Detail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From notes on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the messages selected, or all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>Sessions (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: drop pictures on an object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replay session</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::MaterialPanel</name>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn, °</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset upwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat across</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat upwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of tread</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part around</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Component</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From one side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture coordinates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From three sides</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Around a tire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Projection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn + scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clicks on the object place the picture, or its handles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Placing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handle size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep aspect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn rings seen edge-on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit to the object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End in depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture is a mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show projection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show its depth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far one sees through the shown projection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::ObjectPanel</name>
    <message>
        <source>Translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation, °</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Visible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::PanelDocks</name>
    <message>
        <source>As opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perspective match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::PerspectiveMatchPanel</name>
    <message>
        <source>Match mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X, Y and Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X and Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X and Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y and Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field of view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From the lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay lines as seen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over the models</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1, start, across</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1, start, up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1, end, across</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1, end, up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open photograph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Field of view %2°.</source>
        <comment>sentence, number</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::PlatesPanel</name>
    <message>
        <source>Top left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Top right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select and edit plates in the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a picture from a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a plate of plain colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bring forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send backward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene plates, the foremost first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In front of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behind the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The place of the window that the plate follows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation, °</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap to edges and centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height of a line, of the view&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add the text as a plate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::ScenePanel</name>
    <message>
        <source>Objects of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::StatusLine</name>
    <message>
        <source>Nothing selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Selected: %1 and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handle: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Under the pointer: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of loading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop loading (Esc); the scene stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangles</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Reading %1: %p%</source>
        <comment>%p is the number</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing %1: %p%</source>
        <comment>%p is the number</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::StepsPanel</name>
    <message>
        <source>Step of translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step of rotation, °</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step of scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the gizmo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::ToolBars</name>
    <message>
        <source>Files and steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manipulators</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::ViewWidget</name>
    <message>
        <source>the view cannot be drawn: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>viewer::WindowActions</name>
    <message>
        <source>&amp;Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three-&amp;quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the &amp;desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Translate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Universal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translate, r&amp;otate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translate, rotate, s&amp;cale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translate, rotate about &amp;y and z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate &amp;pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sca&amp;le pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clip plan&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ca&amp;mera pivot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tip, shortcut</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tart scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;picture…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame &amp;selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look &amp;from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look from a side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ort&amp;hographic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Z is up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;effect buffer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ne&amp;xt panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Manipulator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add cl&amp;ip plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remo&amp;ve clip plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Match a p&amp;hotograph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit scene pl&amp;ates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete scene plates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit pictures on o&amp;bjects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axes o&amp;f the object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snappin&amp;g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pivot bac&amp;k to the centre</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axes of the object instead of the world&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advance in steps; hold Ctrl for a while</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps and si&amp;ze</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps of snapping, size of the gizmo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;checkpoint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;play…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop replay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About nbviewer…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
