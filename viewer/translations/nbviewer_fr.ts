<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Manipulator</name>
    <message>
        <source>Change Perspective Match lines of camera %1</source>
        <translation>Modifier les lignes de calage de perspective de la caméra %1</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit Texture Projection</source>
        <translation>Modifier la projection de texture</translation>
    </message>
    <message>
        <source>Place Texture</source>
        <translation>Placer la texture</translation>
    </message>
    <message>
        <source>Set Texture</source>
        <translation>Définir la texture</translation>
    </message>
    <message>
        <source>Edit Texture Settings</source>
        <translation>Modifier les réglages de texture</translation>
    </message>
    <message>
        <source>Switch Texture Projection</source>
        <translation>Changer de projection de texture</translation>
    </message>
    <message>
        <source>Turn scene plates</source>
        <translation>Tourner les plaques de scène</translation>
    </message>
    <message>
        <source>Scale scene plates</source>
        <translation>Mettre à l’échelle les plaques de scène</translation>
    </message>
    <message>
        <source>Move scene plates</source>
        <translation>Déplacer les plaques de scène</translation>
    </message>
    <message>
        <source>Add scene plate</source>
        <translation>Ajouter une plaque de scène</translation>
    </message>
    <message>
        <source>Delete scene plates</source>
        <translation>Supprimer les plaques de scène</translation>
    </message>
    <message>
        <source>Rename scene plate</source>
        <translation>Renommer la plaque de scène</translation>
    </message>
    <message>
        <source>Anchor scene plates</source>
        <translation>Ancrer les plaques de scène</translation>
    </message>
    <message>
        <source>Restack scene plates</source>
        <translation>Réordonner les plaques de scène</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Tourner</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Mettre à l’échelle</translation>
    </message>
    <message>
        <source>Move Rotate Pivot</source>
        <translation>Déplacer le pivot de rotation</translation>
    </message>
    <message>
        <source>Move Scale Pivot</source>
        <translation>Déplacer le pivot d’échelle</translation>
    </message>
    <message>
        <source>Turn Rotate Pivot</source>
        <translation>Tourner le pivot de rotation</translation>
    </message>
    <message>
        <source>Show or hide</source>
        <translation>Afficher ou masquer</translation>
    </message>
    <message>
        <source>Lock or unlock</source>
        <translation>Verrouiller ou déverrouiller</translation>
    </message>
    <message>
        <source>Scene plates to the front or back</source>
        <translation>Plaques de scène à l’avant ou à l’arrière</translation>
    </message>
    <message>
        <source>Show or hide scene plates</source>
        <translation>Afficher ou masquer les plaques de scène</translation>
    </message>
    <message>
        <source>Opacity of scene plates</source>
        <translation>Opacité des plaques de scène</translation>
    </message>
    <message>
        <source>Size of scene plates</source>
        <translation>Taille des plaques de scène</translation>
    </message>
    <message>
        <source>Colour of scene plates</source>
        <translation>Couleur des plaques de scène</translation>
    </message>
    <message>
        <source>Material for pictures</source>
        <translation>Matériau pour images</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Align scene plates</source>
        <translation>Aligner les plaques de scène</translation>
    </message>
    <message>
        <source>Distribute scene plates</source>
        <translation>Répartir les plaques de scène</translation>
    </message>
    <message>
        <source>Duplicate scene plates</source>
        <translation>Dupliquer les plaques de scène</translation>
    </message>
    <message>
        <source>Change text</source>
        <translation>Modifier le texte</translation>
    </message>
</context>
<context>
    <name>nbForegroundTextContext</name>
    <message>
        <source>Center (</source>
        <translation>Centre (</translation>
    </message>
    <message>
        <source>Height (</source>
        <translation>Hauteur (</translation>
    </message>
    <message>
        <source>Radius (</source>
        <translation>Rayon (</translation>
    </message>
    <message>
        <source>Scale (</source>
        <translation>Échelle (</translation>
    </message>
    <message>
        <source>Translation (</source>
        <translation>Translation (</translation>
    </message>
    <message>
        <source>Rotation (</source>
        <translation>Rotation (</translation>
    </message>
    <message>
        <source>Rotate Pivot (</source>
        <translation>Pivot de rotation (</translation>
    </message>
    <message>
        <source>Scale Pivot (</source>
        <translation>Pivot d’échelle (</translation>
    </message>
    <message>
        <source>Set Texture Center Position</source>
        <translation>Définir la position du centre de la texture</translation>
    </message>
    <message>
        <source>right</source>
        <translation>droite</translation>
    </message>
    <message>
        <source>up</source>
        <translation>haut</translation>
    </message>
    <message>
        <source>%1 deg</source>
        <translation>%1 deg</translation>
    </message>
    <message>
        <source>%1 along %2</source>
        <translation>%1 selon %2</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
</context>
<context>
    <name>viewer</name>
    <message>
        <source>Add clip plane</source>
        <translation>Ajouter un plan de coupe</translation>
    </message>
    <message>
        <source>Remove clip plane</source>
        <translation>Supprimer le plan de coupe</translation>
    </message>
    <message>
        <source>there is nothing to be cut</source>
        <translation>il n’y a rien à couper</translation>
    </message>
    <message>
        <source>select a clip plane first</source>
        <translation>sélectionner d’abord un plan de coupe</translation>
    </message>
    <message>
        <source>Centre pivot</source>
        <translation>Centrer le pivot</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n triangles without a finite place were left out</source>
        <translation>
            <numerusform>%1&#xa0;: %n triangle sans position finie a été omis</numerusform>
            <numerusform>%1&#xa0;: %n triangles sans position finie ont été omis</numerusform>
        </translation>
    </message>
    <message>
        <source>cannot be read as a model: its header has no end</source>
        <translation>ne peut pas être lu comme modèle&#xa0;: l’en-tête n’a pas de fin</translation>
    </message>
    <message>
        <source>cannot be read as a model: it has faces without corners</source>
        <translation>ne peut pas être lu comme modèle&#xa0;: des faces n’ont pas de sommets</translation>
    </message>
    <message>
        <source>reading was stopped</source>
        <translation>la lecture a été interrompue</translation>
    </message>
    <message>
        <source>cannot be read as a model: %1</source>
        <translation>ne peut pas être lu comme modèle&#xa0;: %1</translation>
    </message>
    <message>
        <source>holds no surface</source>
        <translation>ne contient aucune surface</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>n’est pas un fichier</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>fichier introuvable</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>nothing is selected</source>
        <translation>rien n’est sélectionné</translation>
    </message>
    <message>
        <source>the selected object is locked or cannot take this value</source>
        <translation>l’objet sélectionné est verrouillé ou n’accepte pas cette valeur</translation>
    </message>
    <message>
        <source>an orthographic view cannot be matched: switch to perspective</source>
        <translation>une vue orthographique ne peut pas être calée&#xa0;: passer en perspective</translation>
    </message>
    <message>
        <source>the camera is locked</source>
        <translation>la caméra est verrouillée</translation>
    </message>
    <message>
        <source>Lay lines as seen</source>
        <translation>Poser les lignes selon la vue</translation>
    </message>
    <message>
        <source>Change perspective match</source>
        <translation>Modifier le calage de perspective</translation>
    </message>
    <message>
        <source>Change magnifier</source>
        <translation>Modifier la loupe</translation>
    </message>
    <message>
        <source>Orientation and field of view follow the lines.</source>
        <translation>L’orientation et le champ de vision suivent les lignes.</translation>
    </message>
    <message>
        <source>The orientation follows the lines; the field of view is kept.</source>
        <translation>L’orientation suit les lignes&#xa0;; le champ de vision est conservé.</translation>
    </message>
    <message>
        <source>An orthographic view cannot be matched: switch to perspective.</source>
        <translation>Une vue orthographique ne peut pas être calée&#xa0;: passer en perspective.</translation>
    </message>
    <message>
        <source>A line is too short: the camera stays.</source>
        <translation>Une ligne est trop courte&#xa0;: la caméra reste en place.</translation>
    </message>
    <message>
        <source>Two lines of an axis lie on each other: the camera stays.</source>
        <translation>Deux lignes d’un axe se superposent&#xa0;: la caméra reste en place.</translation>
    </message>
    <message>
        <source>The lines contradict each other: the camera stays.</source>
        <translation>Les lignes se contredisent&#xa0;: la caméra reste en place.</translation>
    </message>
    <message>
        <source>There is no camera to be matched.</source>
        <translation>Il n’y a pas de caméra à caler.</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <translation>Images (%1)</translation>
    </message>
    <message>
        <source>no scene plate is selected</source>
        <translation>aucune plaque de scène n’est sélectionnée</translation>
    </message>
    <message>
        <source>expected a text that fits into a picture</source>
        <translation>un texte qui tient dans une image est attendu</translation>
    </message>
    <message>
        <source>expected a name that no other plate has</source>
        <translation>un nom qu’aucune autre plaque ne porte est attendu</translation>
    </message>
    <message>
        <source>there is no further plate on this side</source>
        <translation>il n’y a pas d’autre plaque de ce côté</translation>
    </message>
    <message numerus="yes">
        <source>%n scene plates</source>
        <translation>
            <numerusform>%n plaque de scène</numerusform>
            <numerusform>%n plaques de scène</numerusform>
        </translation>
    </message>
    <message>
        <source>No scene plate selected</source>
        <translation>Aucune plaque de scène sélectionnée</translation>
    </message>
    <message>
        <source>Scene plate: %1</source>
        <translation>Plaque de scène&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no picture on the selected object</source>
        <translation>il n’y a pas d’image sur l’objet sélectionné</translation>
    </message>
    <message>
        <source>Select an object to put a picture on it.</source>
        <translation>Sélectionner un objet pour y placer une image.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no surface of its own: select a part of it.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas de surface propre&#xa0;: en sélectionner une partie.</translation>
    </message>
    <message>
        <source>%1: there is no object to drop it on</source>
        <translation>%1&#xa0;: il n’y a pas d’objet où le déposer</translation>
    </message>
    <message>
        <source>Place picture</source>
        <translation>Placer l’image</translation>
    </message>
    <message>
        <source>the surface with the picture is not there</source>
        <translation>la surface portant l’image n’est pas là</translation>
    </message>
    <message>
        <source>a clip plane has lost its frame</source>
        <translation>un plan de coupe a perdu son cadre</translation>
    </message>
    <message>
        <source>%1: cannot be saved: %2</source>
        <translation>%1&#xa0;: ne peut pas être enregistré&#xa0;: %2</translation>
    </message>
    <message>
        <source>a picture that came from no file cannot be saved</source>
        <translation>une image qui ne vient d’aucun fichier ne peut pas être enregistrée</translation>
    </message>
    <message>
        <source>is no picture</source>
        <translation>n’est pas une image</translation>
    </message>
    <message>
        <source>there is no model &quot;%1&quot;</source>
        <translation>il n’y a pas de modèle «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>expected &quot;%1&quot; in the model, which has &quot;%2&quot; there</source>
        <translation>«&#xa0;%1&#xa0;» est attendu dans le modèle, qui contient là «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the model has no object &quot;%1&quot; at &quot;%2&quot;</source>
        <translation>le modèle n’a pas d’objet «&#xa0;%1&#xa0;» en «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the model has no surface &quot;%1&quot; there</source>
        <translation>le modèle n’a pas là de surface «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1: too large</source>
        <translation>%1&#xa0;: trop grand</translation>
    </message>
    <message>
        <source>%1: not while something is being dragged</source>
        <translation>%1 : pas pendant un glissement</translation>
    </message>
    <message>
        <source>the picture has %1 x %2 pixels, which would take more than %3 MiB</source>
        <translation>l’image a %1 x %2 pixels et prendrait plus de %3 Mio</translation>
    </message>
    <message>
        <source>%1: cannot be written</source>
        <translation>%1 : impossible d’écrire le fichier</translation>
    </message>
    <message>
        <source>is not on this machine</source>
        <translation>n’est pas sur cette machine</translation>
    </message>
    <message>
        <source>no such folder</source>
        <translation>aucun dossier de ce nom</translation>
    </message>
    <message>
        <source>cannot be read as a model: what was read of it is damaged</source>
        <translation>ne peut pas être lu comme modèle : ce qui en a été lu est endommagé</translation>
    </message>
    <message>
        <source>cannot be read as a model: reading it ended with a fault</source>
        <translation>ne peut pas être lu comme modèle : la lecture s’est terminée par une erreur</translation>
    </message>
    <message>
        <source>cannot be read as a model: it would take too much memory</source>
        <translation>ne peut pas être lu comme modèle : il prendrait trop de mémoire</translation>
    </message>
    <message>
        <source>has no end: reading was given up</source>
        <translation>n’a pas de fin : la lecture a été abandonnée</translation>
    </message>
    <message>
        <source>the program that reads models cannot be started: %1</source>
        <translation>le programme qui lit les modèles ne peut pas être lancé : %1</translation>
    </message>
    <message>
        <source>cannot be read as a model: %1 is no kind that is known</source>
        <translation>ne peut pas être lu comme modèle : %1 n’est pas un type connu</translation>
    </message>
    <message>
        <source>it has places too far away</source>
        <translation>il a des points trop éloignés</translation>
    </message>
    <message>
        <source>its nodes are nested too deeply</source>
        <translation>ses nœuds sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>Models, scenes and pictures (%1);;All files (*)</source>
        <translation>Modèles, scènes et images (%1);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Move line %1</source>
        <translation>Déplacer la ligne %1</translation>
    </message>
    <message>
        <source>Move end of line %1</source>
        <translation>Déplacer l’extrémité de la ligne %1</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Move along x</source>
        <translation>Déplacer selon x</translation>
    </message>
    <message>
        <source>Move along y</source>
        <translation>Déplacer selon y</translation>
    </message>
    <message>
        <source>Move along z</source>
        <translation>Déplacer selon z</translation>
    </message>
    <message>
        <source>Scale along x</source>
        <translation>Mettre à l&apos;échelle selon x</translation>
    </message>
    <message>
        <source>Scale along y</source>
        <translation>Mettre à l&apos;échelle selon y</translation>
    </message>
    <message>
        <source>Scale along z</source>
        <translation>Mettre à l&apos;échelle selon z</translation>
    </message>
    <message>
        <source>Turn about x</source>
        <translation>Tourner autour de x</translation>
    </message>
    <message>
        <source>Turn about y</source>
        <translation>Tourner autour de y</translation>
    </message>
    <message>
        <source>Turn about z</source>
        <translation>Tourner autour de z</translation>
    </message>
    <message>
        <source>Move in the plane of x and y</source>
        <translation>Déplacer dans le plan de x et y</translation>
    </message>
    <message>
        <source>Move in the plane of x and z</source>
        <translation>Déplacer dans le plan de x et z</translation>
    </message>
    <message>
        <source>Move in the plane of y and z</source>
        <translation>Déplacer dans le plan de y et z</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Tourner</translation>
    </message>
    <message>
        <source>Scale from a corner</source>
        <translation>Mettre à l&apos;échelle par un coin</translation>
    </message>
    <message>
        <source>Scale from an edge</source>
        <translation>Mettre à l&apos;échelle par un bord</translation>
    </message>
    <message>
        <source>Scale the depth</source>
        <translation>Mettre la profondeur à l&apos;échelle</translation>
    </message>
    <message>
        <source>Right button</source>
        <translation>Bouton droit</translation>
    </message>
    <message>
        <source>Orbit; a click: menu</source>
        <translation>Tourner ; un clic : menu</translation>
    </message>
    <message>
        <source>Middle button</source>
        <translation>Bouton du milieu</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Déplacer la vue</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Molette</translation>
    </message>
    <message>
        <source>Zoom towards the pointer</source>
        <translation>Zoomer vers le pointeur</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Clic</translation>
    </message>
    <message>
        <source>Select; Ctrl or Shift: further objects</source>
        <translation>Sélectionner ; Ctrl ou Maj : d&apos;autres objets</translation>
    </message>
    <message>
        <source>Drag from empty space</source>
        <translation>Glisser depuis le vide</translation>
    </message>
    <message>
        <source>Select what lies in the rectangle</source>
        <translation>Sélectionner ce qui est dans le rectangle</translation>
    </message>
    <message>
        <source>Ctrl in a drag</source>
        <translation>Ctrl en glissant</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Aligner</translation>
    </message>
    <message>
        <source>Shift in a drag</source>
        <translation>Maj en glissant</translation>
    </message>
    <message>
        <source>Slow down</source>
        <translation>Ralentir</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Take the drag back, leave a mode</source>
        <translation>Annuler le déplacement, quitter un mode</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked</source>
        <translation>« %1 » est verrouillé</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>a clip plane cannot be duplicated</source>
        <translation>un plan de coupe ne peut pas être dupliqué</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>a name has at least one letter</source>
        <translation>un nom a au moins une lettre</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Field of view ±%1°.</source>
        <translation>Champ de vision ±%1°.</translation>
    </message>
    <message>
        <source>Orientation ±%1°.</source>
        <translation>Orientation ± %1°.</translation>
    </message>
    <message>
        <source>Line %1 is off by %2 pixels.</source>
        <translation>La ligne %1 est décalée de %2 pixels.</translation>
    </message>
    <message>
        <source>The lines of %1 are almost parallel in the picture, so it hardly tells the field of view: use lines of a third axis, or set the lens.</source>
        <translation>Les lignes de %1 sont presque parallèles dans l&apos;image, qui dit donc peu du champ de vision : utilisez les lignes d&apos;un troisième axe ou indiquez l&apos;objectif.</translation>
    </message>
    <message>
        <source>No camera sees right angles so: check which lines belong together.</source>
        <translation>Aucune caméra ne voit ainsi des angles droits : vérifiez quelles lignes vont ensemble.</translation>
    </message>
    <message>
        <source>Turn axes about %1</source>
        <translation>Tourner les axes autour de %1</translation>
    </message>
    <message>
        <source>Place camera</source>
        <translation>Placer la caméra</translation>
    </message>
    <message>
        <source>line %1 tells no place: it must run along its axis and not be a point</source>
        <translation>la ligne %1 n&apos;indique aucun lieu : elle doit suivre son axe et ne pas être un point</translation>
    </message>
    <message>
        <source>Set lens</source>
        <translation>Indiquer l&apos;objectif</translation>
    </message>
    <message>
        <source>%1: %2 px</source>
        <comment>line, how far it is off</comment>
        <translation>%1 : %2 px</translation>
    </message>
    <message>
        <source>at least three scene plates are needed</source>
        <translation>il faut au moins trois plaques de scène</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Ancrage</translation>
    </message>
    <message>
        <source>no text is selected</source>
        <translation>aucun texte n’est sélectionné</translation>
    </message>
    <message>
        <source>Move in the plane of the screen</source>
        <translation>Déplacer dans le plan de l’écran</translation>
    </message>
    <message>
        <source>Turn about the view axis</source>
        <translation>Tourner autour de l’axe de vue</translation>
    </message>
    <message>
        <source>Turn freely</source>
        <translation>Tourner librement</translation>
    </message>
    <message>
        <source>Scale along x and y</source>
        <translation>Mettre à l’échelle selon x et y</translation>
    </message>
    <message>
        <source>Scale along x and z</source>
        <translation>Mettre à l’échelle selon x et z</translation>
    </message>
    <message>
        <source>Scale along y and z</source>
        <translation>Mettre à l’échelle selon y et z</translation>
    </message>
    <message>
        <source>%1: is there already and belongs to another file</source>
        <translation>%1 : existe déjà et appartient à un autre fichier</translation>
    </message>
    <message>
        <source>%1: models are exported to %2</source>
        <translation>%1 : les modèles sont exportés en %2</translation>
    </message>
    <message>
        <source>there is nothing to export</source>
        <translation>il n&apos;y a rien à exporter</translation>
    </message>
    <message>
        <source>there is no photograph</source>
        <translation>il n&apos;y a pas de photographie</translation>
    </message>
    <message>
        <source>Fit photograph</source>
        <translation>Ajuster la photographie</translation>
    </message>
    <message>
        <source>line %1 names a vertex that there is not</source>
        <translation>la ligne %1 cite un sommet qui n&apos;existe pas</translation>
    </message>
    <message>
        <source>the picture does not lie so that this could be done</source>
        <translation>l’image n’est pas posée de façon à permettre cela</translation>
    </message>
    <message>
        <source>Drag the picture</source>
        <translation>Faire glisser l&apos;image</translation>
    </message>
    <message>
        <source>A click places the handles; Esc ends</source>
        <translation>Un clic place les poignées ; Échap termine</translation>
    </message>
    <message>
        <source>A click places the picture, the wheel turns it (%1°), Ctrl and the wheel size it (%2%); Shift slows, Esc ends</source>
        <translation>Un clic place l’image, la molette la tourne (%1°), Ctrl et la molette changent sa taille (%2 %) ; Maj ralentit, Échap termine</translation>
    </message>
    <message>
        <source>The view is held: &quot;Hold the view&quot; (Shift+H) lets it go</source>
        <translation>La vue est verrouillée : « Verrouiller la vue » (Maj+H) la libère</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
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
        <translation>Qt %1 (compilé avec %2)</translation>
    </message>
    <message>
        <source>OpenGL: %1</source>
        <translation>OpenGL&#xa0;: %1</translation>
    </message>
    <message>
        <source>not started</source>
        <translation>non démarré</translation>
    </message>
    <message>
        <source>Scene graph: bundled, interface of version %1.%2</source>
        <translation>Graphe de scène&#xa0;: intégré, interface de la version %1.%2</translation>
    </message>
    <message>
        <source>Picking: %1</source>
        <translation>Sélection au pointeur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Model files: %1</source>
        <translation>Fichiers de modèles&#xa0;: %1</translation>
    </message>
    <message>
        <source>System: %1, %2</source>
        <translation>Système&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>About nbviewer</source>
        <translation>À propos de nbviewer</translation>
    </message>
    <message>
        <source>Interactive manipulators for 3D scenes</source>
        <translation>Manipulateurs interactifs pour scènes 3D</translation>
    </message>
</context>
<context>
    <name>viewer::AxesCorner</name>
    <message>
        <source>Axes of the world</source>
        <translation>Axes du monde</translation>
    </message>
    <message>
        <source>Click on an axis to look along it</source>
        <translation>Cliquer sur un axe pour regarder le long de celui-ci</translation>
    </message>
</context>
<context>
    <name>viewer::Language</name>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
</context>
<context>
    <name>viewer::LogPanel</name>
    <message>
        <source>Detail</source>
        <translation>Détail</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>Sessions (*.json)</source>
        <translation>Sessions (*.json)</translation>
    </message>
    <message>
        <source>View of the scene</source>
        <translation>Vue de la scène</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.bmp)</source>
        <translation>Images (*.png *.jpg *.bmp)</translation>
    </message>
    <message>
        <source>%1: drop pictures on an object</source>
        <translation>%1&#xa0;: déposer les images sur un objet</translation>
    </message>
    <message>
        <source>Replay session</source>
        <translation>Rejouer une session</translation>
    </message>
    <message>
        <source>%1: a scene can only be opened by itself</source>
        <translation>%1&#xa0;: une scène ne peut être ouverte que seule</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>The manual is not installed</source>
        <translation>Le manuel n’est pas installé</translation>
    </message>
    <message>
        <source>%1 has been written</source>
        <translation>%1 a été écrit</translation>
    </message>
</context>
<context>
    <name>viewer::MaterialPanel</name>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Turn, °</source>
        <translation>Rotation, °</translation>
    </message>
    <message>
        <source>Half size</source>
        <translation>Demi-taille</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répétition</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Décalage en largeur</translation>
    </message>
    <message>
        <source>Offset upwards</source>
        <translation>Décalage en hauteur</translation>
    </message>
    <message>
        <source>Repeat across</source>
        <translation>Répéter en largeur</translation>
    </message>
    <message>
        <source>Repeat upwards</source>
        <translation>Répéter en hauteur</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Width of tread</source>
        <translation>Largeur de bande</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Part around</source>
        <translation>Part du tour</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Pas d’image</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Composante</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>From one side</source>
        <translation>D’un côté</translation>
    </message>
    <message>
        <source>Texture coordinates</source>
        <translation>Coordonnées de texture</translation>
    </message>
    <message>
        <source>From three sides</source>
        <translation>De trois côtés</translation>
    </message>
    <message>
        <source>Around a tire</source>
        <translation>Autour d’un pneu</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>Projection</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Tourner</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Turn + scale</source>
        <translation>Tourner + échelle</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>By click</source>
        <translation>Par clic</translation>
    </message>
    <message>
        <source>Placing</source>
        <translation>Placement</translation>
    </message>
    <message>
        <source>Handle size</source>
        <translation>Taille des poignées</translation>
    </message>
    <message>
        <source>Keep aspect</source>
        <translation>Garder les proportions</translation>
    </message>
    <message>
        <source>Turn rings seen edge-on</source>
        <translation>Anneaux vus de profil</translation>
    </message>
    <message>
        <source>Fit to the object</source>
        <translation>Ajuster à l’objet</translation>
    </message>
    <message>
        <source>End in depth</source>
        <translation>Fin en profondeur</translation>
    </message>
    <message>
        <source>Picture is a mask</source>
        <translation>L’image est un masque</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Inverser</translation>
    </message>
    <message>
        <source>Show projection</source>
        <translation>Afficher la projection</translation>
    </message>
    <message>
        <source>Show its depth</source>
        <translation>Afficher sa profondeur</translation>
    </message>
    <message>
        <source>How far one sees through the shown projection</source>
        <translation>Transparence de la projection affichée</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Choose picture</source>
        <translation>Choisir une image</translation>
    </message>
    <message>
        <source>On &quot;%1&quot;</source>
        <translation>Sur «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Clicks on the object place the picture, or its handles, until Esc</source>
        <translation>Les clics sur l&apos;objet placent l&apos;image, ou ses poignées, jusqu&apos;à Échap</translation>
    </message>
    <message>
        <source>Turn about the handles</source>
        <translation>Tourner autour des poignées</translation>
    </message>
    <message>
        <source>Grab the picture</source>
        <translation>Saisir l’image</translation>
    </message>
    <message>
        <source>Pixels per unit</source>
        <translation>Pixels par unité</translation>
    </message>
    <message>
        <source>Fit to the face</source>
        <translation>Ajuster à la face</translation>
    </message>
    <message>
        <source>Fit as seen</source>
        <translation>Ajuster selon la vue</translation>
    </message>
    <message>
        <source>Align to the surface</source>
        <translation>Aligner sur la surface</translation>
    </message>
    <message>
        <source>Align upright</source>
        <translation>Aligner à la verticale</translation>
    </message>
    <message>
        <source>Align to the view</source>
        <translation>Aligner sur la vue</translation>
    </message>
    <message>
        <source>Quarter turn left</source>
        <translation>Quart de tour à gauche</translation>
    </message>
    <message>
        <source>Quarter turn right</source>
        <translation>Quart de tour à droite</translation>
    </message>
    <message>
        <source>Flip across</source>
        <translation>Retourner horizontalement</translation>
    </message>
    <message>
        <source>Flip upwards</source>
        <translation>Retourner verticalement</translation>
    </message>
    <message>
        <source>Own aspect</source>
        <translation>Proportions d’origine</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Disposer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no texture coordinates of its own: it has those of a box</source>
        <translation>« %1 » n&apos;a pas de coordonnées de texture propres : il a celles d&apos;une boîte</translation>
    </message>
    <message>
        <source>On faces up to, °</source>
        <translation>Sur les faces jusqu’à, °</translation>
    </message>
    <message>
        <source>Shown up to, °|Fading over, °</source>
        <translation>Affichée jusqu’à, °|Fondu sur, °</translation>
    </message>
</context>
<context>
    <name>viewer::NumberBox</name>
    <message>
        <source>&quot;%1&quot; is not complete</source>
        <translation>« %1 » n&apos;est pas complet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not understood from &quot;%2&quot; on</source>
        <translation>« %1 » n&apos;est pas compris à partir de « %2 »</translation>
    </message>
    <message>
        <source>&quot;%1&quot;: &quot;%2&quot; is no unit of this number</source>
        <translation>« %1 » : « %2 » n&apos;est pas une unité de ce nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no number that can be had</source>
        <translation>« %1 » ne donne pas de nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not lie between %2 and %3</source>
        <translation>« %1 » n&apos;est pas compris entre %2 et %3</translation>
    </message>
</context>
<context>
    <name>viewer::ObjectPanel</name>
    <message>
        <source>Translation</source>
        <translation>Translation</translation>
    </message>
    <message>
        <source>Rotation, °</source>
        <translation>Rotation, °</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Rotate pivot</source>
        <translation>Pivot de rotation</translation>
    </message>
    <message>
        <source>Scale pivot</source>
        <translation>Pivot d’échelle</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrouillé</translation>
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
        <translation>Rien de sélectionné</translation>
    </message>
    <message>
        <source>Keep proportions</source>
        <translation>Conserver les proportions</translation>
    </message>
</context>
<context>
    <name>viewer::PanelDocks</name>
    <message>
        <source>As opened</source>
        <translation>À l’ouverture</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Étapes</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Matériau</translation>
    </message>
    <message>
        <source>Perspective match</source>
        <translation>Calage de perspective</translation>
    </message>
    <message>
        <source>Scene plates</source>
        <translation>Plaques de scène</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
</context>
<context>
    <name>viewer::PerspectiveMatchPanel</name>
    <message>
        <source>Match mode</source>
        <translation>Mode calage</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Camera locked</source>
        <translation>Caméra verrouillée</translation>
    </message>
    <message>
        <source>Lines used</source>
        <translation>Lignes utilisées</translation>
    </message>
    <message>
        <source>X, Y and Z</source>
        <translation>X, Y et Z</translation>
    </message>
    <message>
        <source>X and Y</source>
        <translation>X et Y</translation>
    </message>
    <message>
        <source>X and Z</source>
        <translation>X et Z</translation>
    </message>
    <message>
        <source>Y and Z</source>
        <translation>Y et Z</translation>
    </message>
    <message>
        <source>Field of view</source>
        <translation>Champ de vision</translation>
    </message>
    <message>
        <source>From the lines</source>
        <translation>D’après les lignes</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>Lay lines as seen</source>
        <translation>Poser les lignes</translation>
    </message>
    <message>
        <source>Turn camera</source>
        <translation>Tourner la caméra</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Photographie</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Ouvrir…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Over the models</source>
        <translation>Sur les modèles</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>Line %1, start, across</source>
        <translation>Ligne %1, début, horizontal</translation>
    </message>
    <message>
        <source>Line %1, start, up</source>
        <translation>Ligne %1, début, vertical</translation>
    </message>
    <message>
        <source>Line %1, end, across</source>
        <translation>Ligne %1, fin, horizontal</translation>
    </message>
    <message>
        <source>Line %1, end, up</source>
        <translation>Ligne %1, fin, vertical</translation>
    </message>
    <message>
        <source>Open photograph</source>
        <translation>Ouvrir une photographie</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>%1 Field of view %2°.</source>
        <comment>sentence, number</comment>
        <translation>%1 Champ de vision %2°.</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Distance focale</translation>
    </message>
    <message>
        <source>Sensor width</source>
        <translation>Largeur du capteur</translation>
    </message>
    <message>
        <source>Lens, sensor (mm)</source>
        <translation>Objectif, capteur (mm)</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Indiquer</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>A line from the origin, its length</source>
        <translation>Ligne partant de l&apos;origine, sa longueur</translation>
    </message>
    <message>
        <source>Move camera</source>
        <translation>Déplacer la caméra</translation>
    </message>
    <message>
        <source>Turn axes about</source>
        <translation>Tourner les axes autour de</translation>
    </message>
    <message>
        <source>Height of the view</source>
        <translation>Hauteur de la vue</translation>
    </message>
    <message>
        <source>Width of the view</source>
        <translation>Largeur de la vue</translation>
    </message>
    <message>
        <source>Fills</source>
        <translation>Remplit</translation>
    </message>
    <message>
        <source>Lines snap to edges (Alt: not)</source>
        <translation>Les lignes se calent sur les arêtes (Alt : non)</translation>
    </message>
</context>
<context>
    <name>viewer::PlatesPanel</name>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Select and edit plates in the view</source>
        <translation>Sélectionner et modifier les plaques dans la vue</translation>
    </message>
    <message>
        <source>Picture…</source>
        <translation>Image…</translation>
    </message>
    <message>
        <source>Add a picture from a file</source>
        <translation>Ajouter une image depuis un fichier</translation>
    </message>
    <message>
        <source>Colour…</source>
        <translation>Couleur…</translation>
    </message>
    <message>
        <source>Add a plate of plain colour</source>
        <translation>Ajouter une plaque de couleur unie</translation>
    </message>
    <message>
        <source>Bring forward</source>
        <translation>Avancer</translation>
    </message>
    <message>
        <source>Send backward</source>
        <translation>Reculer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Scene plates, the foremost first</source>
        <translation>Plaques de scène, la plus en avant d’abord</translation>
    </message>
    <message>
        <source>In front of the scene</source>
        <translation>Devant la scène</translation>
    </message>
    <message>
        <source>Behind the scene</source>
        <translation>Derrière la scène</translation>
    </message>
    <message>
        <source>Lies</source>
        <translation>Située</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>The place of the window that the plate follows</source>
        <translation>L’endroit de la fenêtre que suit la plaque</translation>
    </message>
    <message>
        <source>Anchor</source>
        <translation>Ancrage</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
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
        <translation>Taille</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Échelle</translation>
    </message>
    <message>
        <source>Rotation, °</source>
        <translation>Rotation, °</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Snap to edges and centre</source>
        <translation>Magnétisme aux bords et au centre</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Height of a line, of the view&apos;s</source>
        <translation>Hauteur d’une ligne, par rapport à la vue</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Gras</translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add the text as a plate</source>
        <translation>Ajouter le texte comme plaque</translation>
    </message>
    <message>
        <source>Add picture</source>
        <translation>Ajouter une image</translation>
    </message>
    <message>
        <source>Align left</source>
        <translation>Aligner à gauche</translation>
    </message>
    <message>
        <source>Align centres across</source>
        <translation>Aligner les centres à l&apos;horizontale</translation>
    </message>
    <message>
        <source>Align right</source>
        <translation>Aligner à droite</translation>
    </message>
    <message>
        <source>Align top</source>
        <translation>Aligner en haut</translation>
    </message>
    <message>
        <source>Align centres down</source>
        <translation>Aligner les centres à la verticale</translation>
    </message>
    <message>
        <source>Align bottom</source>
        <translation>Aligner en bas</translation>
    </message>
    <message>
        <source>Equal gaps across</source>
        <translation>Espacer également à l&apos;horizontale</translation>
    </message>
    <message>
        <source>Equal gaps down</source>
        <translation>Espacer également à la verticale</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Arrange plates</source>
        <translation>Disposer les plaques</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Change the text of the selected plate</source>
        <translation>Modifier le texte de la plaque sélectionnée</translation>
    </message>
</context>
<context>
    <name>viewer::SceneFileActions</name>
    <message>
        <source>Scenes (*.nbscene)</source>
        <translation>Scènes (*.nbscene)</translation>
    </message>
    <message>
        <source>Save scene</source>
        <translation>Enregistrer la scène</translation>
    </message>
    <message>
        <source>The scene</source>
        <translation>La scène</translation>
    </message>
    <message>
        <source>%1 has been edited. Save it?</source>
        <translation>%1 a été modifié. L’enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>Edits that are not saved will be lost.</source>
        <translation>Les modifications non enregistrées seront perdues.</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>The program ended unexpectedly. Edits up to %1 have been kept. Recover them?</source>
        <translation>Le programme s’est terminé de façon inattendue. Les modifications jusqu’à %1 ont été gardées. Faut-il les récupérer ?</translation>
    </message>
    <message>
        <source>%1 has been changed by another program. Replace it?</source>
        <translation>%1 a été modifié par un autre programme. Le remplacer ?</translation>
    </message>
    <message>
        <source>%1: has been changed by another program</source>
        <translation>%1 : a été modifié par un autre programme</translation>
    </message>
    <message>
        <source>What is neither recovered nor discarded is offered again at the next start.</source>
        <translation>Ce qui n’est ni récupéré ni abandonné sera proposé de nouveau au prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>viewer::ScenePanel</name>
    <message>
        <source>Objects of the scene</source>
        <translation>Objets de la scène</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Verrouillé</translation>
    </message>
</context>
<context>
    <name>viewer::Settings</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Orbiting</source>
        <translation>Rotation de la vue</translation>
    </message>
    <message>
        <source>Right button; middle pans</source>
        <translation>Bouton droit&#xa0;; le milieu déplace</translation>
    </message>
    <message>
        <source>Middle button; with Shift pans</source>
        <translation>Bouton du milieu&#xa0;; avec Maj il déplace</translation>
    </message>
    <message>
        <source>Grid on the ground</source>
        <translation>Grille au sol</translation>
    </message>
    <message>
        <source>Coarse while the view moves</source>
        <translation>Grossier pendant que la vue bouge</translation>
    </message>
    <message>
        <source>Edits are kept every, s</source>
        <translation>Conserver les modifications toutes les, s</translation>
    </message>
    <message>
        <source>Most that a picture may take, MiB</source>
        <translation>Maximum pour une image, Mio</translation>
    </message>
    <message>
        <source>Colours of handles</source>
        <translation>Couleurs des poignées</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Classiques</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>Douces</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <source>For any colour vision</source>
        <translation>Pour toute vision des couleurs</translation>
    </message>
    <message>
        <source>Handles fade that are seen end-on</source>
        <translation>Estomper les poignées vues de face</translation>
    </message>
    <message>
        <source>Draw what a drag has come to</source>
        <translation>Tracer le déplacement</translation>
    </message>
    <message>
        <source>Snap to corners and edges of objects</source>
        <translation>Magnétisme sur les sommets et arêtes des objets</translation>
    </message>
    <message>
        <source>Size of the gizmo</source>
        <translation>Taille du gizmo</translation>
    </message>
    <message>
        <source>Step of translation</source>
        <translation>Pas de translation</translation>
    </message>
    <message>
        <source>Step of rotation, °</source>
        <translation>Pas de rotation, °</translation>
    </message>
    <message>
        <source>Step of scale</source>
        <translation>Pas d’échelle</translation>
    </message>
    <message>
        <source>Backs of rings are dim</source>
        <translation>Les arrières des anneaux sont estompés</translation>
    </message>
    <message>
        <source>Letters at the tips of handles</source>
        <translation>Lettres aux pointes des poignées</translation>
    </message>
    <message>
        <source>Hit handles from farther with pen or finger</source>
        <translation>Atteindre les poignées de plus loin au stylet ou au doigt</translation>
    </message>
    <message>
        <source>A handle moves in the plane of the screen</source>
        <translation>Une poignée déplace dans le plan de l&apos;écran</translation>
    </message>
    <message>
        <source>A ring turns about the view axis</source>
        <translation>Un anneau tourne autour de l&apos;axe de vue</translation>
    </message>
    <message>
        <source>A disc turns freely</source>
        <translation>Un disque tourne librement</translation>
    </message>
    <message>
        <source>Planes scale in two axes</source>
        <translation>Les plans mettent à l’échelle selon deux axes</translation>
    </message>
    <message>
        <source>Handles stand on the viewer&apos;s side</source>
        <translation>Les poignées se tiennent du côté de l&apos;observateur</translation>
    </message>
    <message>
        <source>Axes of the handles</source>
        <translation>Axes des poignées</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Monde</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Object above</source>
        <translation>Objet parent</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Several objects turn and scale</source>
        <translation>Plusieurs objets tournent et changent d&apos;échelle</translation>
    </message>
    <message>
        <source>Each about its own pivot</source>
        <translation>Chacun autour de son pivot</translation>
    </message>
    <message>
        <source>About the first one&apos;s pivot</source>
        <translation>Autour du pivot du premier</translation>
    </message>
    <message>
        <source>About the middle of their pivots</source>
        <translation>Autour du milieu de leurs pivots</translation>
    </message>
    <message>
        <source>Length of arrows in pixels, 0 by that size</source>
        <translation>Longueur des flèches en pixels, 0 selon cette taille</translation>
    </message>
</context>
<context>
    <name>viewer::SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
</context>
<context>
    <name>viewer::StatusLine</name>
    <message>
        <source>Nothing selected</source>
        <translation>Rien de sélectionné</translation>
    </message>
    <message numerus="yes">
        <source>Selected: %1 and %n more</source>
        <translation>
            <numerusform>Sélection&#xa0;: %1 et %n autre</numerusform>
            <numerusform>Sélection&#xa0;: %1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Selected: %1</source>
        <translation>Sélection&#xa0;: %1</translation>
    </message>
    <message>
        <source>Under the pointer: %1</source>
        <translation>Sous le pointeur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Progress of loading</source>
        <translation>Progression du chargement</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop loading</source>
        <translation>Arrêter le chargement</translation>
    </message>
    <message>
        <source>Stop loading (Esc); the scene stays as it is</source>
        <translation>Arrêter le chargement (Échap)&#xa0;; la scène reste telle quelle</translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangles</source>
        <translation>
            <numerusform>%Ln triangle</numerusform>
            <numerusform>%Ln triangles</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading %1: %p%</source>
        <comment>%p is the number</comment>
        <translation>Lecture de %1&#xa0;: %p&#xa0;%</translation>
    </message>
    <message>
        <source>Preparing %1: %p%</source>
        <comment>%p is the number</comment>
        <translation>Préparation de %1&#xa0;: %p&#xa0;%</translation>
    </message>
    <message>
        <source>%1: Ctrl snaps, Shift slows, type a number, Esc cancels</source>
        <translation>%1 : Ctrl aligne, Maj ralentit, saisir un nombre, Échap annule</translation>
    </message>
    <message>
        <source>%1: Shift slows, type a number, Esc cancels</source>
        <translation>%1 : Maj ralentit, saisir un nombre, Échap annule</translation>
    </message>
</context>
<context>
    <name>viewer::ToolBars</name>
    <message>
        <source>Files and steps</source>
        <translation>Fichiers et étapes</translation>
    </message>
    <message>
        <source>Handles</source>
        <translation>Poignées</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Manipulators</source>
        <translation>Manipulateurs</translation>
    </message>
</context>
<context>
    <name>viewer::ViewWidget</name>
    <message>
        <source>the view cannot be drawn: %1</source>
        <translation>la vue ne peut pas être dessinée&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 ms, %2 draw calls, %L3 triangles</source>
        <translation>%1 ms, %2 appels de dessin, %L3 triangles</translation>
    </message>
    <message>
        <source>%1 ms, %2 draw calls, %L3 triangles, scene image reused</source>
        <translation>%1 ms, %2 appels de dessin, %L3 triangles, image de la scène réutilisée</translation>
    </message>
    <message>
        <source>%1; input to picture %2 ms</source>
        <translation>%1&#xa0;; de l’entrée à l’image %2 ms</translation>
    </message>
</context>
<context>
    <name>viewer::WindowActions</name>
    <message>
        <source>&amp;Front</source>
        <translation>&amp;Face</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Arrière</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Droite</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Gauche</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>De&amp;ssus</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>Desso&amp;us</translation>
    </message>
    <message>
        <source>Three-&amp;quarter</source>
        <translation>&amp;Trois quarts</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Aucun</translation>
    </message>
    <message>
        <source>&amp;Translate</source>
        <translation>&amp;Déplacer</translation>
    </message>
    <message>
        <source>&amp;Rotate</source>
        <translation>&amp;Tourner</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>&amp;Mettre à l’échelle</translation>
    </message>
    <message>
        <source>&amp;Universal</source>
        <translation>&amp;Universel</translation>
    </message>
    <message>
        <source>Translate, r&amp;otate</source>
        <translation>Dépla&amp;cer, tourner</translation>
    </message>
    <message>
        <source>Translate, rotate, s&amp;cale</source>
        <translation>Déplacer, tourner, mettre à l’éche&amp;lle</translation>
    </message>
    <message>
        <source>Translate, rotate about &amp;y and z</source>
        <translation>Déplacer, tourner autour de &amp;Y et Z</translation>
    </message>
    <message>
        <source>Rotate &amp;pivot</source>
        <translation>&amp;Pivot de rotation</translation>
    </message>
    <message>
        <source>Sca&amp;le pivot</source>
        <translation>Pivot d’éc&amp;helle</translation>
    </message>
    <message>
        <source>Clip plan&amp;e</source>
        <translation>Pla&amp;n de coupe</translation>
    </message>
    <message>
        <source>Ca&amp;mera pivot</source>
        <translation>Pi&amp;vot de la caméra</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tip, shortcut</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Open &amp;recent</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>S&amp;tart scene</source>
        <translation>Scène de &amp;départ</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select &amp;nothing</source>
        <translation>&amp;Ne rien sélectionner</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Frame &amp;all</source>
        <translation>Cadrer &amp;tout</translation>
    </message>
    <message>
        <source>Frame &amp;selection</source>
        <translation>Cadrer la &amp;sélection</translation>
    </message>
    <message>
        <source>Look &amp;from</source>
        <translation>Regarder &amp;depuis</translation>
    </message>
    <message>
        <source>Look from a side</source>
        <translation>Regarder d’un côté</translation>
    </message>
    <message>
        <source>Ort&amp;hographic</source>
        <translation>&amp;Orthographique</translation>
    </message>
    <message>
        <source>&amp;Z is up</source>
        <translation>&amp;Z vers le haut</translation>
    </message>
    <message>
        <source>&amp;Panels</source>
        <translation>&amp;Panneaux</translation>
    </message>
    <message>
        <source>Show &amp;effect buffer</source>
        <translation>Afficher le tampon d’&amp;effet</translation>
    </message>
    <message>
        <source>Ne&amp;xt panel</source>
        <translation>Panneau sui&amp;vant</translation>
    </message>
    <message>
        <source>F&amp;ull screen</source>
        <translation>Plei&amp;n écran</translation>
    </message>
    <message>
        <source>&amp;Manipulator</source>
        <translation>&amp;Manipulateur</translation>
    </message>
    <message>
        <source>Add cl&amp;ip plane</source>
        <translation>A&amp;jouter un plan de coupe</translation>
    </message>
    <message>
        <source>Remo&amp;ve clip plane</source>
        <translation>Supp&amp;rimer le plan de coupe</translation>
    </message>
    <message>
        <source>Match a p&amp;hotograph</source>
        <translation>Caler sur une ph&amp;otographie</translation>
    </message>
    <message>
        <source>Edit scene pl&amp;ates</source>
        <translation>Modi&amp;fier les plaques de scène</translation>
    </message>
    <message>
        <source>Edit pictures on o&amp;bjects</source>
        <translation>Modifier les images sur les o&amp;bjets</translation>
    </message>
    <message>
        <source>Axes o&amp;f the object</source>
        <translation>A&amp;xes de l’objet</translation>
    </message>
    <message>
        <source>Snappin&amp;g</source>
        <translation>Magnét&amp;isme</translation>
    </message>
    <message>
        <source>Pivot bac&amp;k to the centre</source>
        <translation>Ramener le pivot au c&amp;entre</translation>
    </message>
    <message>
        <source>Axes of the object instead of the world&apos;s</source>
        <translation>Axes de l’objet au lieu de ceux du monde</translation>
    </message>
    <message>
        <source>Advance in steps; hold Ctrl for a while</source>
        <translation>Avancer par pas&#xa0;; maintenir Ctrl pour un moment</translation>
    </message>
    <message>
        <source>&amp;Session</source>
        <translation>&amp;Session</translation>
    </message>
    <message>
        <source>Re&amp;play…</source>
        <translation>&amp;Rejouer…</translation>
    </message>
    <message>
        <source>&amp;Stop replay</source>
        <translation>&amp;Arrêter la lecture</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>&amp;About nbviewer…</source>
        <translation>À &amp;propos de nbviewer…</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Frame stat&amp;istics</source>
        <translation>Statist&amp;iques d’image</translation>
    </message>
    <message>
        <source>&amp;Save scene</source>
        <translation>&amp;Enregistrer la scène</translation>
    </message>
    <message>
        <source>Save sc&amp;ene as…</source>
        <translation>Enregistrer la scène &amp;sous…</translation>
    </message>
    <message>
        <source>Sa&amp;ve picture…</source>
        <translation>Enregistrer l’&amp;image…</translation>
    </message>
    <message>
        <source>Hold the vie&amp;w</source>
        <translation>Blo&amp;quer la vue</translation>
    </message>
    <message>
        <source>Hold the view: nothing moves the camera until this is lifted</source>
        <translation>Verrouiller la vue : rien ne déplace la caméra tant que c&apos;est actif</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Rena&amp;me</source>
        <translation>Reno&amp;mmer</translation>
    </message>
    <message>
        <source>&amp;Hide or show</source>
        <translation>Masquer ou affic&amp;her</translation>
    </message>
    <message>
        <source>Loc&amp;k or unlock</source>
        <translation>&amp;Verrouiller ou déverrouiller</translation>
    </message>
    <message>
        <source>&amp;Shortcuts…</source>
        <translation>Ra&amp;ccourcis…</translation>
    </message>
    <message>
        <source>Se&amp;ttings…</source>
        <translation>&amp;Paramètres…</translation>
    </message>
    <message>
        <source>&amp;Grid on the ground</source>
        <translation>&amp;Grille au sol</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>&amp;Tour</source>
        <translation>&amp;Visite guidée</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>World</source>
        <translation>Monde</translation>
    </message>
    <message>
        <source>E&amp;xport models…</source>
        <translation>E&amp;xporter les modèles…</translation>
    </message>
    <message>
        <source>Export models</source>
        <translation>Exporter les modèles</translation>
    </message>
    <message>
        <source>Models (%1)</source>
        <translation>Modèles (%1)</translation>
    </message>
    <message>
        <source>Object above</source>
        <translation>Objet parent</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
</context>
</TS>
