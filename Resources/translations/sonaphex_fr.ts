<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AcceptDragImageView</name>
    <message>
        <source>Cover</source>
        <translation>Pochette</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>A picture; Delete removes it</source>
        <translation>Une image&#xa0;; Suppr la retire</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Announcement</name>
    <message>
        <source>Announcements</source>
        <translation>Annonces</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Impossible d’ouvrir le fichier.</translation>
    </message>
    <message>
        <source>it is already running</source>
        <translation>il est déjà en cours d’exécution</translation>
    </message>
</context>
<context>
    <name>Audio</name>
    <message>
        <source>the device is not there</source>
        <translation>le périphérique est absent</translation>
    </message>
    <message>
        <source>the sound server refused to capture the device</source>
        <translation>le serveur de son a refusé la capture du périphérique</translation>
    </message>
    <message>
        <source>%1 is not installed: no sound server answers and none can be started</source>
        <translation>%1 n’est pas installé&#xa0;: aucun serveur de son ne répond et aucun ne peut être démarré</translation>
    </message>
    <message>
        <source>the private sound server did not start</source>
        <translation>le serveur de son privé n’a pas démarré</translation>
    </message>
    <message>
        <source>the private sound server came up without its devices</source>
        <translation>le serveur de son privé a démarré sans ses périphériques</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>aucun serveur de son ne répond&#xa0;: %1</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>le serveur de son a disparu</translation>
    </message>
    <message>
        <source>this unit captures only</source>
        <translation>cette unité ne sait que capturer</translation>
    </message>
    <message>
        <source>the unit is running</source>
        <translation>l’unité est en marche</translation>
    </message>
    <message>
        <source>there is no device number %1</source>
        <translation>il n’y a pas de périphérique numéro %1</translation>
    </message>
    <message>
        <source>%1 has no input</source>
        <translation>%1 n’a pas d’entrée</translation>
    </message>
    <message>
        <source>no device is set</source>
        <translation>aucun périphérique n’est défini</translation>
    </message>
    <message>
        <source>the unit delivers 32-bit float, one buffer a channel, at the device&apos;s rate only</source>
        <translation>l’unité ne fournit que des flottants 32 bits, un tampon par canal, à la fréquence du périphérique</translation>
    </message>
    <message>
        <source>no device or no callback is set</source>
        <translation>aucun périphérique ou aucune fonction de rappel n’est défini</translation>
    </message>
    <message>
        <source>the input is not enabled</source>
        <translation>l’entrée n’est pas activée</translation>
    </message>
    <message>
        <source>the unit is not initialised</source>
        <translation>l’unité n’est pas initialisée</translation>
    </message>
    <message>
        <source>the sound server accepts connections but does not answer. Restart it (systemctl --user restart pipewire) and try again</source>
        <translation>le serveur de son accepte les connexions mais ne répond pas. Redémarrez-le (systemctl --user restart pipewire) et réessayez</translation>
    </message>
    <message>
        <source>the stream failed</source>
        <translation>le flux a échoué</translation>
    </message>
    <message>
        <source>the device went away</source>
        <translation>le périphérique a disparu</translation>
    </message>
    <message>
        <source>no sound server answers: a private one was started, its input device is a tone</source>
        <translation>aucun serveur de son ne répond&#xa0;: un serveur privé a été démarré, son périphérique d’entrée est un signal d’essai</translation>
    </message>
</context>
<context>
    <name>AudioDataSourceView</name>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation>&amp;Cocher ou décocher</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>&amp;Remove from This List</source>
        <translation>&amp;Retirer de cette liste</translation>
    </message>
    <message>
        <source>The file itself stays</source>
        <translation>Le fichier lui-même est conservé</translation>
    </message>
    <message>
        <source>No music yet. Press “Add Files…” or drop sound files here.</source>
        <translation>Pas encore de musique. Cliquez sur «&#xa0;Ajouter des fichiers…&#xa0;» ou déposez ici des fichiers audio.</translation>
    </message>
</context>
<context>
    <name>AudioEditTimeView</name>
    <message>
        <source>Play position</source>
        <translation>Position de lecture</translation>
    </message>
</context>
<context>
    <name>AudioFilterController</name>
    <message>
        <source>Short Recordings</source>
        <translation>Enregistrements courts</translation>
    </message>
    <message>
        <source>Recordings of at &amp;most</source>
        <translation>Enregistrements d’au &amp;plus</translation>
    </message>
    <message>
        <source>0 shows every recording.</source>
        <translation>0 affiche tous les enregistrements.</translation>
    </message>
    <message>
        <source>Recordings of at most this many seconds</source>
        <translation>Enregistrements d’au plus ce nombre de secondes</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> secondes</translation>
    </message>
    <message>
        <source>Short recordings</source>
        <translation>Enregistrements courts</translation>
    </message>
    <message>
        <source>Ticked recordings</source>
        <translation>Enregistrements cochés</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>%1 ticked, %2</source>
        <translation>Cochés&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Do you want to move these items to the trash?</source>
        <translation>Voulez-vous mettre ces éléments à la corbeille&#xa0;?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>AudioPlayProgressView</name>
    <message>
        <source>Playback position</source>
        <translation>Position de lecture</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>AudioPointerLineView</name>
    <message>
        <source>Play pointer</source>
        <translation>Curseur de lecture</translation>
    </message>
</context>
<context>
    <name>AudioRecordWaveView</name>
    <message>
        <source>Recording level</source>
        <translation>Niveau d’enregistrement</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, clipped</source>
        <translation>%1&#xa0;%, écrêté</translation>
    </message>
</context>
<context>
    <name>AudioRowDelegate</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
</context>
<context>
    <name>AudioTableModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>Le fichier n’existe plus.</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>En lecture</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>No mark</source>
        <translation>Aucune marque</translation>
    </message>
</context>
<context>
    <name>AudioTrimEditView</name>
    <message>
        <source>Range to keep</source>
        <translation>Plage à conserver</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Position de lecture</translation>
    </message>
    <message>
        <source>Begin of the range to keep</source>
        <translation>Début de la partie à conserver</translation>
    </message>
    <message>
        <source>End of the range to keep</source>
        <translation>Fin de la partie à conserver</translation>
    </message>
</context>
<context>
    <name>AudioTrimSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe plus.</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est encore en cours d’enregistrement.</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>La plage dure moins d’un dixième de seconde.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>Il n’y a plus de place sur le disque.</translation>
    </message>
    <message>
        <source>The tags could not be written.</source>
        <translation>Impossible d’écrire les étiquettes.</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>le nouveau fichier</translation>
    </message>
    <message>
        <source>It was stopped before the end.</source>
        <translation>L’opération a été arrêtée avant la fin.</translation>
    </message>
</context>
<context>
    <name>AudioTrimWnd</name>
    <message>
        <source>Trim</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Temps de lecture</translation>
    </message>
    <message>
        <source>Begin of the range</source>
        <translation>Début de la plage</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>Durée de la plage</translation>
    </message>
    <message>
        <source>End of the range</source>
        <translation>Fin de la plage</translation>
    </message>
    <message>
        <source>Set here</source>
        <translation>Placer ici</translation>
    </message>
    <message>
        <source>Move the begin of the range to the play position</source>
        <translation>Déplacer le début de la plage à la position de lecture</translation>
    </message>
    <message>
        <source>Move the end of the range to the play position</source>
        <translation>Déplacer la fin de la plage à la position de lecture</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>P&amp;review</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Sauvegarder s&amp;ous…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sauvegarder</translation>
    </message>
</context>
<context>
    <name>AudioTrimWndController</name>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>La plage dure moins d’un dixième de seconde.</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>Le fichier est en cours de lecture.</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>Impossible de sauvegarder l’enregistrement.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Sauvegarder sous</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>L’enregistrement n’a pas été sauvegardé.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>Attention&#xa0;:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Attention&#xa0;:</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Ce chemin existe déjà, veuillez changer le chemin ou le nom.</translation>
    </message>
    <message>
        <source>Converting Audio......</source>
        <translation>Conversion de l’audio......</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; audio file.</source>
        <translation>Voulez-vous remplacer le fichier audio «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
</context>
<context>
    <name>AudioWaveEditView</name>
    <message>
        <source>Outline</source>
        <translation>Forme d’onde</translation>
    </message>
</context>
<context>
    <name>AudioWaveTrimView</name>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Drag the edges or the middle. Left and Right move the selection, with Control its begin, with Alt its end; with Shift by a second.</source>
        <translation>Faites glisser les bords ou le milieu. Gauche et Droite déplacent la sélection, avec Ctrl son début, avec Alt sa fin&#xa0;; avec Maj d’une seconde.</translation>
    </message>
    <message>
        <source>from %1 to %2, %3 seconds</source>
        <translation>de %1 à %2, %3 secondes</translation>
    </message>
</context>
<context>
    <name>AudioWaveViewController</name>
    <message>
        <source>Recording state</source>
        <translation>État de l’enregistrement</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Switch between recording and playback</source>
        <translation>Basculer entre enregistrement et lecture</translation>
    </message>
    <message>
        <source>Show the next notice</source>
        <translation>Afficher l’avis suivant</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>What can be done about the notice</source>
        <translation>Ce qui peut être fait au sujet de l’avis</translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Choose Device</source>
        <translation>Choisir un périphérique</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>Rétablir le son</translation>
    </message>
    <message>
        <source>Free Space …</source>
        <translation>Libérer de l’espace …</translation>
    </message>
    <message>
        <source>Notice %1 of %2. Show the next one</source>
        <translation>Avis %1 sur %2. Afficher le suivant</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>Durée d’enregistrement</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>Écoulé</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Restant</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>En attente du premier son</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement en cours</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>Rien n’est enregistré</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>Finalisation de l’enregistrement</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Pas d’enregistrement</translation>
    </message>
</context>
<context>
    <name>BalanceSave</name>
    <message>
        <source>It was stopped before the end.</source>
        <translation>L’opération a été arrêtée avant la fin.</translation>
    </message>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe plus.</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est encore en cours d’enregistrement.</translation>
    </message>
    <message>
        <source>The sum of both tracks is too loud and would be clipped.</source>
        <translation>La somme des deux pistes est trop forte et serait écrêtée.</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>le nouveau fichier</translation>
    </message>
</context>
<context>
    <name>BalanceView</name>
    <message>
        <source>Play position</source>
        <translation>Position de lecture</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>Son de l’ordinateur</translation>
    </message>
</context>
<context>
    <name>BalanceWnd</name>
    <message>
        <source>Balance</source>
        <translation>Balance</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Temps de lecture</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>&amp;Entrée</translation>
    </message>
    <message>
        <source>Gain of the input</source>
        <translation>Gain de l’entrée</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>So&amp;n de l’ordinateur</translation>
    </message>
    <message>
        <source>Gain of computer audio</source>
        <translation>Gain du son de l’ordinateur</translation>
    </message>
    <message>
        <source>&amp;Delay of computer audio</source>
        <translation>&amp;Décalage du son de l’ordinateur</translation>
    </message>
    <message>
        <source>Delay of computer audio</source>
        <translation>Décalage du son de l’ordinateur</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>Niveau sonore</translation>
    </message>
    <message>
        <source>&amp;Lower to Fit</source>
        <translation>É&amp;viter l’écrêtage</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Sauvegarder s&amp;ous…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Sauvegarder</translation>
    </message>
</context>
<context>
    <name>BalanceWndController</name>
    <message>
        <source>Silent</source>
        <comment>a track that is not in the mix</comment>
        <translation>Muette</translation>
    </message>
    <message>
        <source>The tracks cannot be played.</source>
        <translation>Impossible d’écouter les pistes.</translation>
    </message>
    <message>
        <source>Both gains and the delay are 0.</source>
        <translation>Les deux gains et le décalage sont à 0.</translation>
    </message>
    <message>
        <source>Measuring the loudest point …</source>
        <translation>Mesure du point le plus fort …</translation>
    </message>
    <message>
        <source>Too loud by %1 dB: the loudest parts would be clipped.</source>
        <translation>Trop fort de %1&#xa0;dB&#xa0;: les passages les plus forts seraient écrêtés.</translation>
    </message>
    <message>
        <source>The mix is silent.</source>
        <translation>Le mixage est muet.</translation>
    </message>
    <message>
        <source>Loudest point: %1 dB below the limit</source>
        <translation>Point le plus fort&#xa0;: %1&#xa0;dB sous la limite</translation>
    </message>
    <message>
        <source>Lowers both gains until nothing is clipped</source>
        <translation>Baisser les deux gains jusqu’à ce que rien ne soit écrêté</translation>
    </message>
    <message>
        <source>Nothing would be clipped.</source>
        <translation>Rien ne serait écrêté.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>Le fichier est en cours de lecture.</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>Impossible de sauvegarder l’enregistrement.</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; with the new mix? Its tracks stay.</source>
        <translation>Voulez-vous remplacer «&#xa0;%1&#xa0;» par le nouveau mixage&#xa0;? Ses pistes sont conservées.</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Attention&#xa0;:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Sauvegarder sous</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Ce chemin existe déjà, veuillez changer le chemin ou le nom.</translation>
    </message>
    <message>
        <source>Lower Both by %1 dB</source>
        <translation>Baisser les deux de %1&#xa0;dB</translation>
    </message>
    <message>
        <source>The mix is too loud.</source>
        <translation>Le mixage est trop fort.</translation>
    </message>
    <message>
        <source>Its loudest parts would be clipped. Lower both gains, and nothing is clipped.</source>
        <translation>Ses passages les plus forts seraient écrêtés. Baissez les deux gains pour que rien ne soit écrêté.</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>L’enregistrement n’a pas été sauvegardé.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The new mix is saved.</source>
        <translation>Le nouveau mixage est sauvegardé.</translation>
    </message>
</context>
<context>
    <name>BurnControl</name>
    <message>
        <source>there is no drive</source>
        <translation>il n’y a pas de graveur</translation>
    </message>
</context>
<context>
    <name>BurnState</name>
    <message>
        <source>Waiting for the import Music File</source>
        <translation>En attente de l’ajout de fichiers audio</translation>
    </message>
    <message>
        <source>Waiting for the inserted Disc</source>
        <translation>En attente de l’insertion d’un disque</translation>
    </message>
    <message>
        <source>Is not blank, Please erase the Disc</source>
        <translation>Disque non vierge, veuillez l’effacer</translation>
    </message>
    <message>
        <source>Is not blank, Please replace the Disc</source>
        <translation>Disque non vierge, veuillez le remplacer</translation>
    </message>
    <message>
        <source>Disc space not enough for music</source>
        <translation>Espace insuffisant sur le disque</translation>
    </message>
    <message>
        <source>Ready to burn</source>
        <translation>Prêt à graver</translation>
    </message>
</context>
<context>
    <name>CDBurnWnd</name>
    <message>
        <source>Burn to Disc</source>
        <translation>Graver sur un disque</translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation>Gra&amp;veur&#xa0;:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Graveur</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>Éjecter le disque</translation>
    </message>
    <message>
        <source>Problem of the drive</source>
        <translation>Problème du graveur</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistes</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Items and size</source>
        <translation>Éléments et taille</translation>
    </message>
    <message>
        <source>Total time</source>
        <translation>Durée totale</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>&amp;Eject when done</source>
        <translation>É&amp;jecter à la fin</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Graver</translation>
    </message>
</context>
<context>
    <name>CDBurnWndController</name>
    <message>
        <source>There is nothing to burn.</source>
        <translation>Il n’y a rien à graver.</translation>
    </message>
    <message>
        <source>Tick the files that are to become tracks, then press Burn.</source>
        <translation>Cochez les fichiers qui doivent devenir des pistes, puis cliquez sur Graver.</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Durée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>Éjecter le disque</translation>
    </message>
    <message>
        <source>There is no disc in the drive.</source>
        <translation>Il n’y a pas de disque dans le graveur.</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message numerus="yes">
        <source> %n Items     Size: %1 MB</source>
        <translation>
            <numerusform> %n élément     Taille&#xa0;: %1&#xa0;Mo</numerusform>
            <numerusform> %n éléments     Taille&#xa0;: %1&#xa0;Mo</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CaptureComputerAudio</name>
    <message>
        <source>%1: the driver does not run on this machine</source>
        <translation>%1&#xa0;: le pilote ne fonctionne pas sur cette machine</translation>
    </message>
    <message>
        <source>%1: no such program</source>
        <translation>%1&#xa0;: programme introuvable</translation>
    </message>
    <message>
        <source>the driver was started, but its device did not appear</source>
        <translation>le pilote a été démarré, mais son périphérique n’est pas apparu</translation>
    </message>
    <message>
        <source>the system audio device is being installed or removed already</source>
        <translation>l’installation ou la désinstallation du périphérique de son du système est déjà en cours</translation>
    </message>
    <message>
        <source>there is no way to get administrator rights</source>
        <translation>il n’y a aucun moyen d’obtenir les droits d’administrateur</translation>
    </message>
    <message>
        <source>%1: the driver is missing from the program&apos;s resources</source>
        <translation>%1&#xa0;: le pilote manque dans les ressources du programme</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--%1: %2 is not a time in seconds</source>
        <translation>--%1&#xa0;: %2 n’est pas une durée en secondes</translation>
    </message>
    <message>
        <source>--%1: %2 is not a whole number</source>
        <translation>--%1&#xa0;: %2 n’est pas un nombre entier</translation>
    </message>
    <message>
        <source>there is no drive that writes discs (--image FILE writes a disc image)</source>
        <translation>il n’y a pas de graveur de disques (--image FILE écrit une image disque)</translation>
    </message>
    <message>
        <source>%1: there is no such drive (&quot;sonaphex drives&quot; lists them)</source>
        <translation>%1&#xa0;: graveur introuvable («&#xa0;sonaphex drives&#xa0;» en donne la liste)</translation>
    </message>
    <message>
        <source>%1: the drive is busy</source>
        <translation>%1&#xa0;: le graveur est occupé</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1&#xa0;: il n’y a pas de disque dans le graveur</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: erase it, or put another one in</source>
        <translation>%1&#xa0;: le disque n’est pas vierge&#xa0;: effacez-le ou insérez-en un autre</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: put another one in</source>
        <translation>%1&#xa0;: le disque n’est pas vierge&#xa0;: insérez-en un autre</translation>
    </message>
    <message>
        <source>%1: no burn can be made with this drive</source>
        <translation>%1&#xa0;: aucune gravure n’est possible avec ce graveur</translation>
    </message>
    <message>
        <source>%1; nothing was burned</source>
        <translation>%1&#xa0;; rien n’a été gravé</translation>
    </message>
    <message>
        <source>the burn failed</source>
        <translation>la gravure a échoué</translation>
    </message>
    <message>
        <source>burn takes the files that become tracks</source>
        <translation>burn attend les fichiers qui deviendront des pistes</translation>
    </message>
    <message>
        <source>--image takes the name of a file</source>
        <translation>--image attend un nom de fichier</translation>
    </message>
    <message>
        <source>--image and --drive exclude each other</source>
        <translation>--image et --drive s’excluent mutuellement</translation>
    </message>
    <message>
        <source>burn sound files as an audio CD, one track each, or write a disc image</source>
        <translation>graver des fichiers audio sur un CD audio, une piste par fichier, ou écrire une image disque</translation>
    </message>
    <message>
        <source>The drive, by its name or its path (&quot;sonaphex drives&quot; lists them).</source>
        <translation>Le graveur, par son nom ou son chemin («&#xa0;sonaphex drives&#xa0;» en donne la liste).</translation>
    </message>
    <message>
        <source>the first drive</source>
        <translation>le premier graveur</translation>
    </message>
    <message>
        <source>Write FILE.cue and FILE.bin instead of a disc. Existing files are never replaced.</source>
        <translation>Écrire FILE.cue et FILE.bin au lieu d’un disque. Les fichiers existants ne sont jamais remplacés.</translation>
    </message>
    <message>
        <source>Eject the disc when it is done.</source>
        <translation>Éjecter le disque à la fin.</translation>
    </message>
    <message>
        <source>Burn two tracks and eject the disc.</source>
        <translation>Graver deux pistes et éjecter le disque.</translation>
    </message>
    <message>
        <source>Write concert.cue and concert.bin.</source>
        <translation>Écrire concert.cue et concert.bin.</translation>
    </message>
    <message>
        <source>%1 (default: %2)</source>
        <translation>%1 (par défaut&#xa0;: %2)</translation>
    </message>
    <message>
        <source>usage: sonaphex %1</source>
        <translation>utilisation&#xa0;: sonaphex %1</translation>
    </message>
    <message>
        <source>options:</source>
        <translation>options&#xa0;:</translation>
    </message>
    <message>
        <source>examples:</source>
        <translation>exemples&#xa0;:</translation>
    </message>
    <message>
        <source>usage: sonaphex            open the window
       sonaphex FILE       open the window and trim an audio file
       sonaphex COMMAND    do one thing and end

commands:
</source>
        <translation>utilisation&#xa0;: sonaphex            ouvrir la fenêtre
              sonaphex FILE       ouvrir la fenêtre et rogner un fichier audio
              sonaphex COMMAND    exécuter une action et terminer

commandes&#xa0;:
</translation>
    </message>
    <message>
        <source>
&quot;sonaphex COMMAND --help&quot; lists the options of a command, &quot;sonaphex --version&quot; the version.
</source>
        <translation>
«&#xa0;sonaphex COMMAND --help&#xa0;» donne les options d’une commande, «&#xa0;sonaphex --version&#xa0;» la version.
</translation>
    </message>
    <message>
        <source>there is no sound server</source>
        <translation>il n’y a pas de serveur de son</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>impossible d’écrire sur la sortie standard&#xa0;: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <comment>no recording</comment>
        <translation>inactif</translation>
    </message>
    <message>
        <source>armed</source>
        <comment>waits for the first sound</comment>
        <translation>en attente du premier son</translation>
    </message>
    <message>
        <source>recording</source>
        <comment>now</comment>
        <translation>enregistrement</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>control takes a command</source>
        <translation>control attend une commande</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1&#xa0;: commande inconnue</translation>
    </message>
    <message>
        <source>the program is not running</source>
        <translation>le programme n’est pas en cours d’exécution</translation>
    </message>
    <message>
        <source>act on the running program</source>
        <translation>agir sur le programme en cours d’exécution</translation>
    </message>
    <message>
        <source>Start a recording in the open window, or stop it.</source>
        <translation>Démarrer un enregistrement dans la fenêtre ouverte, ou l’arrêter.</translation>
    </message>
    <message>
        <source>Print the state of the running program for a script.</source>
        <translation>Afficher l’état du programme en cours d’exécution pour un script.</translation>
    </message>
    <message>
        <source>stopped before the end: nothing was written</source>
        <translation>arrêt avant la fin&#xa0;: rien n’a été écrit</translation>
    </message>
    <message>
        <source>%1 cannot be converted</source>
        <translation>impossible de convertir %1</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, there is nothing from second %3 on</source>
        <translation>%1&#xa0;: il se termine à la seconde %2, il n’y a rien à partir de la seconde %3</translation>
    </message>
    <message>
        <source>the source is damaged, what could be read was converted: %1</source>
        <translation>la source est endommagée, ce qui a pu être lu a été converti&#xa0;: %1</translation>
    </message>
    <message>
        <source>convert takes a source and a target</source>
        <translation>convert attend une source et une cible</translation>
    </message>
    <message>
        <source>--type is wav, m4a or caf</source>
        <translation>--type vaut wav, m4a ou caf</translation>
    </message>
    <message>
        <source>--to is a tenth of a second or more</source>
        <translation>--to vaut au moins un dixième de seconde</translation>
    </message>
    <message>
        <source>--to is before --from</source>
        <translation>--to est avant --from</translation>
    </message>
    <message>
        <source>copy a range of an audio file into a new file</source>
        <translation>copier une plage d’un fichier audio dans un nouveau fichier</translation>
    </message>
    <message>
        <source>The type of the new file.</source>
        <translation>Le type du nouveau fichier.</translation>
    </message>
    <message>
        <source>from the ending of DST</source>
        <translation>selon l’extension de DST</translation>
    </message>
    <message>
        <source>Begin at second S of the source.</source>
        <translation>Commencer à la seconde S de la source.</translation>
    </message>
    <message>
        <source>End at second S of the source.</source>
        <translation>Terminer à la seconde S de la source.</translation>
    </message>
    <message>
        <source>its end</source>
        <translation>sa fin</translation>
    </message>
    <message>
        <source>Fade in over S seconds; a fade shorter than one second is left out.</source>
        <translation>Fondu en ouverture de S secondes&#xa0;; un fondu de moins d’une seconde est omis.</translation>
    </message>
    <message>
        <source>Fade out over S seconds; a fade shorter than one second is left out.</source>
        <translation>Fondu en fermeture de S secondes&#xa0;; un fondu de moins d’une seconde est omis.</translation>
    </message>
    <message>
        <source>Repeat the range until the new file is S seconds long.</source>
        <translation>Répéter la plage jusqu’à ce que le nouveau fichier dure S secondes.</translation>
    </message>
    <message>
        <source>the length of the range</source>
        <translation>la durée de la plage</translation>
    </message>
    <message>
        <source>Replace DST when it exists.</source>
        <translation>Remplacer DST s’il existe.</translation>
    </message>
    <message>
        <source>Copy ten and a half seconds into a WAVE file.</source>
        <translation>Copier dix secondes et demie dans un fichier WAVE.</translation>
    </message>
    <message>
        <source>Repeat ten seconds for half a minute, with fades.</source>
        <translation>Répéter dix secondes pendant une demi-minute, avec des fondus.</translation>
    </message>
    <message>
        <source>devices takes no names</source>
        <translation>devices n’accepte aucun nom</translation>
    </message>
    <message>
        <source>1 channel</source>
        <translation>1 canal</translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation>
            <numerusform>%n canal</numerusform>
            <numerusform>%n canaux</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 Hz, what the computer plays</source>
        <translation>%1, %2&#xa0;Hz, le son joué par l’ordinateur</translation>
    </message>
    <message>
        <source>%1, %2 Hz</source>
        <translation>%1, %2&#xa0;Hz</translation>
    </message>
    <message>
        <source>no input devices</source>
        <translation>aucun périphérique d’entrée</translation>
    </message>
    <message>
        <source>default output: %1</source>
        <translation>sortie par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>output device</comment>
        <translation>aucune</translation>
    </message>
    <message>
        <source>list the input devices</source>
        <translation>lister les périphériques d’entrée</translation>
    </message>
    <message>
        <source>List the devices for a script.</source>
        <translation>Lister les périphériques pour un script.</translation>
    </message>
    <message>
        <source>installed: %1</source>
        <translation>installé&#xa0;: %1</translation>
    </message>
    <message>
        <source>installed: no</source>
        <translation>installé&#xa0;: non</translation>
    </message>
    <message>
        <source>loaded: %1</source>
        <translation>chargé&#xa0;: %1</translation>
    </message>
    <message>
        <source>loaded: no</source>
        <translation>chargé&#xa0;: non</translation>
    </message>
    <message>
        <source>loaded: no (no sound server answers)</source>
        <translation>chargé&#xa0;: non (aucun serveur de son ne répond)</translation>
    </message>
    <message>
        <source>the driver stays as it is while the window records: stop the recording first</source>
        <translation>le pilote reste tel quel tant que la fenêtre enregistre&#xa0;: arrêtez d’abord l’enregistrement</translation>
    </message>
    <message>
        <source>the driver cannot be loaded: no sound server answers</source>
        <translation>impossible de charger le pilote&#xa0;: aucun serveur de son ne répond</translation>
    </message>
    <message>
        <source>the driver was not installed: %1</source>
        <translation>le pilote n’a pas été installé&#xa0;: %1</translation>
    </message>
    <message>
        <source>the driver was not removed: %1</source>
        <translation>le pilote n’a pas été désinstallé&#xa0;: %1</translation>
    </message>
    <message>
        <source>driver takes one of status, install, remove</source>
        <translation>driver attend status, install ou remove</translation>
    </message>
    <message>
        <source>show, install or remove the device that carries what the computer plays</source>
        <translation>afficher, installer ou désinstaller le périphérique qui transporte le son de l’ordinateur</translation>
    </message>
    <message>
        <source>Install the device and load it. Asks for the administrator&apos;s password.</source>
        <translation>Installer le périphérique et le charger. Demande le mot de passe de l’administrateur.</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupé</translation>
    </message>
    <message>
        <source>the drive is not ready yet</source>
        <translation>le graveur n’est pas encore prêt</translation>
    </message>
    <message>
        <source>no disc</source>
        <translation>pas de disque</translation>
    </message>
    <message>
        <source>disc</source>
        <comment>of unknown kind</comment>
        <translation>disque</translation>
    </message>
    <message>
        <source>%1, not blank, can be erased</source>
        <translation>%1, non vierge, effaçable</translation>
    </message>
    <message>
        <source>%1, not blank</source>
        <translation>%1, non vierge</translation>
    </message>
    <message>
        <source>%1, blank, %2 min %3 s of audio</source>
        <translation>%1, vierge, %2&#xa0;min %3&#xa0;s d’audio</translation>
    </message>
    <message>
        <source>drives takes no names</source>
        <translation>drives n’accepte aucun nom</translation>
    </message>
    <message>
        <source>list the drives that write discs, and what is in them</source>
        <translation>lister les graveurs de disques et ce qu’ils contiennent</translation>
    </message>
    <message>
        <source>List the drives for a script.</source>
        <translation>Lister les graveurs pour un script.</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there is none at all</source>
        <translation>il n’y a pas de périphérique d’entrée «&#xa0;%1&#xa0;»&#xa0;: il n’y en a aucun</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there are %2</source>
        <translation>il n’y a pas de périphérique d’entrée «&#xa0;%1&#xa0;»&#xa0;; disponibles&#xa0;: %2</translation>
    </message>
    <message>
        <source>join takes two files or more</source>
        <translation>join attend au moins deux fichiers</translation>
    </message>
    <message>
        <source>join needs --to with the file to write</source>
        <translation>join nécessite --to avec le fichier à écrire</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1&#xa0;: fichier introuvable</translation>
    </message>
    <message>
        <source>%1: there is no such folder</source>
        <translation>%1&#xa0;: dossier introuvable</translation>
    </message>
    <message>
        <source>make one recording of several, in the given order</source>
        <translation>réunir plusieurs enregistrements en un seul, dans l’ordre donné</translation>
    </message>
    <message>
        <source>The recording to write. An existing file is kept.</source>
        <translation>L’enregistrement à écrire. Un fichier existant est conservé.</translation>
    </message>
    <message>
        <source>Join two parts of one recording without encoding them again. Other files are decoded and encoded.</source>
        <translation>Réunir deux parties d’un même enregistrement sans les réencoder. Les autres fichiers sont décodés et encodés.</translation>
    </message>
    <message>
        <source>%1, but the running program does not know this request: it is another version</source>
        <translation>%1, mais le programme en cours d’exécution ne connaît pas cette requête&#xa0;: c’est une autre version</translation>
    </message>
    <message>
        <source>%1, but the library could not be saved</source>
        <translation>%1, mais la bibliothèque n’a pas pu être sauvegardée</translation>
    </message>
    <message>
        <source>%1 could not be added to the library</source>
        <translation>%1 n’a pas pu être ajouté à la bibliothèque</translation>
    </message>
    <message>
        <source>file</source>
        <comment>the path of a recording</comment>
        <translation>fichier</translation>
    </message>
    <message>
        <source>key</source>
        <comment>names an entry of the library</comment>
        <translation>clé</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (absent)</translation>
    </message>
    <message>
        <source>recordings</source>
        <translation>enregistrements</translation>
    </message>
    <message>
        <source>ringtones</source>
        <translation>sonneries</translation>
    </message>
    <message>
        <source>the running program does not know this request: it is another version</source>
        <translation>le programme en cours d’exécution ne connaît pas cette requête&#xa0;: c’est une autre version</translation>
    </message>
    <message>
        <source>no entry has the key %1 (nothing was removed)</source>
        <translation>aucune entrée n’a la clé %1 (rien n’a été supprimé)</translation>
    </message>
    <message>
        <source>the files are deleted, but the library could not be saved</source>
        <translation>les fichiers sont supprimés, mais la bibliothèque n’a pas pu être sauvegardée</translation>
    </message>
    <message>
        <source>library knows list and remove, not %1</source>
        <translation>library connaît list et remove, pas %1</translation>
    </message>
    <message>
        <source>library remove takes the keys of entries</source>
        <translation>library remove attend les clés des entrées</translation>
    </message>
    <message>
        <source>list recordings and ringtones, or remove some with their files</source>
        <translation>lister les enregistrements et les sonneries, ou en supprimer avec leurs fichiers</translation>
    </message>
    <message>
        <source>List both collections with the key of each entry.</source>
        <translation>Lister les deux collections avec la clé de chaque entrée.</translation>
    </message>
    <message>
        <source>Remove an entry and delete its file.</source>
        <translation>Supprimer une entrée et son fichier.</translation>
    </message>
    <message>
        <source>manual takes nothing</source>
        <translation>manual n’accepte aucun argument</translation>
    </message>
    <message>
        <source>completions takes one of bash, zsh, fish</source>
        <translation>completions attend bash, zsh ou fish</translation>
    </message>
    <message>
        <source>print the manual page</source>
        <translation>afficher la page de manuel</translation>
    </message>
    <message>
        <source>Read the manual page.</source>
        <translation>Lire la page de manuel.</translation>
    </message>
    <message>
        <source>print the completions for a shell</source>
        <translation>afficher les complétions pour un shell</translation>
    </message>
    <message>
        <source>Install the completions for the current user&apos;s bash.</source>
        <translation>Installer les complétions pour le bash de l’utilisateur actuel.</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1&#xa0;: est un dossier</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1&#xa0;: dossier introuvable</translation>
    </message>
    <message>
        <source>%1: that path is not a regular file</source>
        <translation>%1&#xa0;: ce chemin n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>%1: exists already (--overwrite replaces it)</source>
        <translation>%1&#xa0;: existe déjà (--overwrite le remplace)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation>impossible de créer le dossier %1</translation>
    </message>
    <message>
        <source>the folder %1 cannot be written: %2</source>
        <translation>impossible d’écrire dans le dossier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>record takes options only</source>
        <translation>record n’accepte que des options</translation>
    </message>
    <message>
        <source>--for takes a time above 0</source>
        <translation>--for attend une durée supérieure à 0</translation>
    </message>
    <message>
        <source>--pre-roll takes at most %1 milliseconds</source>
        <translation>--pre-roll accepte au plus %1 millisecondes</translation>
    </message>
    <message>
        <source>--folder takes a folder</source>
        <translation>--folder attend un dossier</translation>
    </message>
    <message>
        <source>without an input device and without --computer there is nothing to record</source>
        <translation>sans périphérique d’entrée et sans --computer, il n’y a rien à enregistrer</translation>
    </message>
    <message>
        <source>record an input device, what the computer plays, or both into .m4a files</source>
        <translation>enregistrer un périphérique d’entrée, le son de l’ordinateur, ou les deux, dans des fichiers .m4a</translation>
    </message>
    <message>
        <source>Record the input device with this name, UID or id; none records no input device.</source>
        <translation>Enregistrer le périphérique d’entrée ayant ce nom, cet UID ou cet identifiant&#xa0;; none n’en enregistre aucun.</translation>
    </message>
    <message>
        <source>the device and the choice stored in the preferences</source>
        <translation>le périphérique et le choix mémorisés dans les préférences</translation>
    </message>
    <message>
        <source>Record what the computer plays.</source>
        <translation>Enregistrer le son joué par l’ordinateur.</translation>
    </message>
    <message>
        <source>Stop after S seconds of recorded sound, over all files.</source>
        <translation>S’arrêter après S secondes de son enregistré, tous fichiers confondus.</translation>
    </message>
    <message>
        <source>until Control+C</source>
        <translation>jusqu’à Ctrl+C</translation>
    </message>
    <message>
        <source>When waiting for the first sound, give up after S seconds.</source>
        <translation>Pendant l’attente du premier son, abandonner après S secondes.</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>sans limite</translation>
    </message>
    <message>
        <source>Begin a new file after a silence of MS milliseconds of computer audio.</source>
        <translation>Commencer un nouveau fichier après un silence de MS millisecondes du son de l’ordinateur.</translation>
    </message>
    <message>
        <source>as in the preferences</source>
        <translation>comme dans les préférences</translation>
    </message>
    <message>
        <source>When waiting for the first sound, begin MS milliseconds before it, at most 5000.</source>
        <translation>En cas d’attente du premier son, commencer MS millisecondes avant lui, au plus 5000.</translation>
    </message>
    <message>
        <source>Drop a recording shorter than S seconds.</source>
        <translation>Rejeter un enregistrement de moins de S secondes.</translation>
    </message>
    <message>
        <source>Put the recordings into DIR, which is made when it is missing.</source>
        <translation>Placer les enregistrements dans DIR, qui est créé s’il n’existe pas.</translation>
    </message>
    <message>
        <source>Record ten seconds of the input device.</source>
        <translation>Enregistrer dix secondes du périphérique d’entrée.</translation>
    </message>
    <message>
        <source>Record a named device into the current folder until Control+C.</source>
        <translation>Enregistrer un périphérique désigné par son nom dans le dossier actuel jusqu’à Ctrl+C.</translation>
    </message>
    <message>
        <source>Record what the computer plays, one file for each song, and give up when nothing plays for a minute.</source>
        <translation>Enregistrer le son de l’ordinateur, un fichier par morceau, et abandonner quand rien n’est joué pendant une minute.</translation>
    </message>
    <message>
        <source>a recording could not be finished</source>
        <translation>un enregistrement n’a pas pu être terminé</translation>
    </message>
    <message>
        <source>computer audio: its driver is not installed (see sonaphex driver install)</source>
        <translation>son de l’ordinateur&#xa0;: son pilote n’est pas installé (voir sonaphex driver install)</translation>
    </message>
    <message>
        <source>there is no input device</source>
        <translation>il n’y a pas de périphérique d’entrée</translation>
    </message>
    <message>
        <source>there is no source to record: name one with --input or --computer</source>
        <translation>il n’y a aucune source à enregistrer&#xa0;: indiquez-en une avec --input ou --computer</translation>
    </message>
    <message>
        <source>nothing can be recorded</source>
        <translation>rien ne peut être enregistré</translation>
    </message>
    <message>
        <source>waiting for the first sound</source>
        <translation>en attente du premier son</translation>
    </message>
    <message>
        <source>finishing</source>
        <translation>finalisation</translation>
    </message>
    <message>
        <source>no sound came: nothing was recorded</source>
        <translation>aucun son n’est arrivé&#xa0;: rien n’a été enregistré</translation>
    </message>
    <message>
        <source>one recording was shorter than the filter&apos;s time and was not kept</source>
        <translation>un enregistrement était plus court que la durée du filtre et n’a pas été conservé</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings were shorter than the filter&apos;s time and were not kept</source>
        <translation>
            <numerusform>%n enregistrement était plus court que la durée du filtre et n’a pas été conservé</numerusform>
            <numerusform>%n enregistrements étaient plus courts que la durée du filtre et n’ont pas été conservés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: what was recorded is kept in %2</source>
        <translation>%1&#xa0;: ce qui a été enregistré est conservé dans %2</translation>
    </message>
    <message>
        <source>%1 is made, but the running program does not know this request: it is another version</source>
        <translation>%1 est créé, mais le programme en cours d’exécution ne connaît pas cette requête&#xa0;: c’est une autre version</translation>
    </message>
    <message>
        <source>%1 is made, but the library could not be saved</source>
        <translation>%1 est créé, mais la bibliothèque n’a pas pu être sauvegardée</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, --to is %3</source>
        <translation>%1&#xa0;: il se termine à la seconde %2, --to vaut %3</translation>
    </message>
    <message>
        <source>stopped before the end: no ringtone was made</source>
        <translation>arrêt avant la fin&#xa0;: aucune sonnerie n’a été créée</translation>
    </message>
    <message>
        <source>the source is damaged, the ringtone is silent where it could not be read: %1</source>
        <translation>la source est endommagée, la sonnerie est muette aux endroits illisibles&#xa0;: %1</translation>
    </message>
    <message>
        <source>ringtone takes one file</source>
        <translation>ringtone attend un seul fichier</translation>
    </message>
    <message>
        <source>ringtone needs --from and --to</source>
        <translation>ringtone nécessite --from et --to</translation>
    </message>
    <message>
        <source>--to is not after --from</source>
        <translation>--to n’est pas après --from</translation>
    </message>
    <message>
        <source>make a ringtone from a range of a recording and add it to the library</source>
        <translation>créer une sonnerie à partir d’une plage d’un enregistrement et l’ajouter à la bibliothèque</translation>
    </message>
    <message>
        <source>Begin at second S of the recording.</source>
        <translation>Commencer à la seconde S de l’enregistrement.</translation>
    </message>
    <message>
        <source>End at second S of the recording.</source>
        <translation>Terminer à la seconde S de l’enregistrement.</translation>
    </message>
    <message>
        <source>Make a ringtone of this half minute.</source>
        <translation>Créer une sonnerie de cette demi-minute.</translation>
    </message>
    <message>
        <source>longest silence found: %1 s</source>
        <translation>plus long silence trouvé&#xa0;: %1&#xa0;s</translation>
    </message>
    <message>
        <source>%1: no silence of %2 s; the longest one has %3 s</source>
        <translation>%1&#xa0;: aucun silence de %2&#xa0;s&#xa0;; le plus long dure %3&#xa0;s</translation>
    </message>
    <message>
        <source>split takes one file</source>
        <translation>split attend un seul fichier</translation>
    </message>
    <message>
        <source>split needs --silence with at least %1 milliseconds</source>
        <translation>split nécessite --silence avec au moins %1 millisecondes</translation>
    </message>
    <message>
        <source>--level takes decibels from -120 to below 0</source>
        <translation>--level attend des décibels, de -120 à moins de 0</translation>
    </message>
    <message>
        <source>cut a recording into several at its silences, without encoding it again</source>
        <translation>diviser un enregistrement en plusieurs à ses silences, sans le réencoder</translation>
    </message>
    <message>
        <source>Cut in the middle of each silence of at least MS milliseconds, 50 or more.</source>
        <translation>Couper au milieu de chaque silence d’au moins MS millisecondes, 50 ou plus.</translation>
    </message>
    <message>
        <source>A silence lies below DB decibels of full scale, from -120 to below 0.</source>
        <translation>Un silence est inférieur à DB décibels par rapport à la pleine échelle, de -120 à moins de 0.</translation>
    </message>
    <message>
        <source>Put the parts into DIR.</source>
        <translation>Placer les parties dans DIR.</translation>
    </message>
    <message>
        <source>the folder of the recording</source>
        <translation>le dossier de l’enregistrement</translation>
    </message>
    <message>
        <source>Only list the cuts and the longest silence; write nothing.</source>
        <translation>Lister seulement les coupes et le plus long silence&#xa0;; ne rien écrire.</translation>
    </message>
    <message>
        <source>Make a 1.m4a, a 2.m4a and so on beside a.m4a, which stays as it is.</source>
        <translation>Créer a 1.m4a, a 2.m4a, etc. à côté de a.m4a, qui reste tel quel.</translation>
    </message>
    <message>
        <source>See where the cuts would be.</source>
        <translation>Voir où se situeraient les coupes.</translation>
    </message>
    <message>
        <source>Print one JSON document instead of text.</source>
        <translation>Afficher un document JSON au lieu de texte.</translation>
    </message>
    <message>
        <source>none</source>
        <comment>cover</comment>
        <translation>aucune</translation>
    </message>
    <message>
        <source>title:</source>
        <translation>titre&#xa0;:</translation>
    </message>
    <message>
        <source>artist:</source>
        <translation>artiste&#xa0;:</translation>
    </message>
    <message>
        <source>album:</source>
        <translation>album&#xa0;:</translation>
    </message>
    <message>
        <source>year:</source>
        <translation>année&#xa0;:</translation>
    </message>
    <message>
        <source>genre:</source>
        <translation>genre&#xa0;:</translation>
    </message>
    <message>
        <source>artwork:</source>
        <translation>pochette&#xa0;:</translation>
    </message>
    <message>
        <source>the artwork of %1 could not be written</source>
        <translation>la pochette de %1 n’a pas pu être écrite</translation>
    </message>
    <message>
        <source>tag takes one file</source>
        <translation>tag attend un seul fichier</translation>
    </message>
    <message>
        <source>--year: %1 is not a number</source>
        <translation>--year&#xa0;: %1 n’est pas un nombre</translation>
    </message>
    <message>
        <source>the file is changed</source>
        <translation>le fichier a été modifié</translation>
    </message>
    <message>
        <source>print or write the tags and the cover of an MPEG-4 audio file</source>
        <translation>afficher ou écrire les étiquettes et la pochette d’un fichier audio MPEG-4</translation>
    </message>
    <message>
        <source>Write this title. An empty text removes the tag; the same holds for the other texts.</source>
        <translation>Écrire ce titre. Un texte vide supprime l’étiquette&#xa0;; il en va de même pour les autres textes.</translation>
    </message>
    <message>
        <source>Write this artist.</source>
        <translation>Écrire cet artiste.</translation>
    </message>
    <message>
        <source>Write this album.</source>
        <translation>Écrire cet album.</translation>
    </message>
    <message>
        <source>Write this year; 0 removes the tag.</source>
        <translation>Écrire cette année&#xa0;; 0 supprime l’étiquette.</translation>
    </message>
    <message>
        <source>Write this genre.</source>
        <translation>Écrire ce genre.</translation>
    </message>
    <message>
        <source>Take the cover from this picture file.</source>
        <translation>Prendre la pochette dans ce fichier image.</translation>
    </message>
    <message>
        <source>Rename the file after its title, unless the name is taken or not possible.</source>
        <translation>Renommer le fichier d’après son titre, sauf si le nom est pris ou impossible.</translation>
    </message>
    <message>
        <source>Print the tags.</source>
        <translation>Afficher les étiquettes.</translation>
    </message>
    <message>
        <source>Write a title and a cover.</source>
        <translation>Écrire un titre et une pochette.</translation>
    </message>
    <message>
        <source>Write a title and name the file Morning.m4a.</source>
        <translation>Écrire un titre et nommer le fichier Morning.m4a.</translation>
    </message>
    <message>
        <source>%1: This path exists, please change the path or name.</source>
        <translation>%1&#xa0;: Ce chemin existe déjà, veuillez changer le chemin ou le nom.</translation>
    </message>
    <message>
        <source>%1: the file is being played</source>
        <translation>%1&#xa0;: le fichier est en cours de lecture</translation>
    </message>
    <message>
        <source>the file is trimmed</source>
        <translation>le fichier a été rogné</translation>
    </message>
    <message>
        <source>trim takes one file</source>
        <translation>trim attend un seul fichier</translation>
    </message>
    <message>
        <source>trim takes --from, --to or both</source>
        <translation>trim attend --from, --to ou les deux</translation>
    </message>
    <message>
        <source>--to must be at least a tenth of a second after --from</source>
        <translation>--to doit être au moins un dixième de seconde après --from</translation>
    </message>
    <message>
        <source>--save-as names no file</source>
        <translation>--save-as n’indique aucun fichier</translation>
    </message>
    <message>
        <source>cut a recording down to a range, in its place or into a new file</source>
        <translation>réduire un enregistrement à une plage, sur place ou dans un nouveau fichier</translation>
    </message>
    <message>
        <source>Write a new file and leave the recording as it is. An existing file is kept.</source>
        <translation>Écrire un nouveau fichier et laisser l’enregistrement tel quel. Un fichier existant est conservé.</translation>
    </message>
    <message>
        <source>the recording is replaced</source>
        <translation>l’enregistrement est remplacé</translation>
    </message>
    <message>
        <source>Cut off the first two and a half seconds and all after a minute.</source>
        <translation>Supprimer les deux premières secondes et demie et tout ce qui suit la première minute.</translation>
    </message>
    <message>
        <source>Copy ten seconds into a new recording.</source>
        <translation>Copier dix secondes dans un nouvel enregistrement.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n values are too few for a picture</source>
        <translation>
            <numerusform>%1&#xa0;: %n valeur ne suffit pas pour une image</numerusform>
            <numerusform>%1&#xa0;: %n valeurs ne suffisent pas pour une image</numerusform>
        </translation>
    </message>
    <message>
        <source>waveform takes one file</source>
        <translation>waveform attend un seul fichier</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>arrêt avant la fin</translation>
    </message>
    <message>
        <source>the file is damaged, what could be read is shown: %1</source>
        <translation>le fichier est endommagé, ce qui a pu être lu est affiché&#xa0;: %1</translation>
    </message>
    <message>
        <source>print ten values of a file&apos;s outline for each second</source>
        <translation>afficher, pour chaque seconde, dix valeurs de la forme d’onde d’un fichier</translation>
    </message>
    <message>
        <source>Draw the outline into a PNG file instead of printing it.</source>
        <translation>Dessiner la forme d’onde dans un fichier PNG au lieu de l’afficher.</translation>
    </message>
    <message>
        <source>Replace FILE when it exists.</source>
        <translation>Remplacer FILE s’il existe.</translation>
    </message>
    <message>
        <source>Draw the outline of a recording.</source>
        <translation>Dessiner la forme d’onde d’un enregistrement.</translation>
    </message>
    <message>
        <source>%1: no such command and no such file (see sonaphex help)</source>
        <translation>%1&#xa0;: ni commande ni fichier de ce nom (voir sonaphex help)</translation>
    </message>
    <message>
        <source>burning</source>
        <translation>gravure</translation>
    </message>
    <message>
        <source>%1, %2 being finished</source>
        <translation>%1, %2 en cours de finalisation</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1, %2 octets</translation>
    </message>
    <message>
        <source>disc image</source>
        <translation>image disque</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a list of the library and how many are in it</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>--app and --not-app exclude each other</source>
        <translation>--app et --not-app s’excluent</translation>
    </message>
    <message>
        <source>--%1 takes the name of a program</source>
        <translation>--%1 demande le nom d’un programme</translation>
    </message>
    <message>
        <source>Of computer audio, record only this program; may be given several times.</source>
        <translation>De l’audio de l’ordinateur, enregistrer seulement ce programme ; peut être répété.</translation>
    </message>
    <message>
        <source>with --computer everything, else as in the preferences</source>
        <translation>avec --computer tout, sinon comme dans les préférences</translation>
    </message>
    <message>
        <source>Of computer audio, record everything but this program; may be given several times.</source>
        <translation>De l’audio de l’ordinateur, enregistrer tout sauf ce programme ; peut être répété.</translation>
    </message>
    <message>
        <source>Record one program, whatever else plays.</source>
        <translation>Enregistrer un programme, quoi que jouent les autres.</translation>
    </message>
    <message>
        <source>Of computer audio, give each file the title, artist, album and cover that the media player names.</source>
        <translation>Pour le son de l’ordinateur, donner à chaque fichier le titre, l’artiste, l’album et la pochette qu’indique le lecteur multimédia.</translation>
    </message>
    <message>
        <source>Of computer audio, begin a new file when the media player goes on to another track.</source>
        <translation>Pour le son de l’ordinateur, commencer un nouveau fichier quand le lecteur multimédia passe à un autre morceau.</translation>
    </message>
    <message>
        <source>Record an album without pauses, one file with its title for each track.</source>
        <translation>Enregistrer un album sans pauses, un fichier avec son titre par morceau.</translation>
    </message>
    <message>
        <source>%1: no tracks were kept of this recording</source>
        <translation>%1&#xa0;: aucune piste n’a été conservée pour cet enregistrement</translation>
    </message>
    <message>
        <source>both gains were lowered by %1 dB, so that nothing is clipped</source>
        <translation>les deux gains ont été baissés de %1&#xa0;dB pour que rien ne soit écrêté</translation>
    </message>
    <message>
        <source>the new mix is saved</source>
        <translation>le nouveau mixage est sauvegardé</translation>
    </message>
    <message>
        <source>--%1: %2 is not a number</source>
        <translation>--%1&#xa0;: %2 n’est pas un nombre</translation>
    </message>
    <message>
        <source>balance takes one file</source>
        <translation>balance attend un seul fichier</translation>
    </message>
    <message>
        <source>gains are -60 to 20 decibels, and the delay -2000 to 2000 milliseconds</source>
        <translation>les gains vont de -60 à 20 décibels, et le décalage de -2000 à 2000 millisecondes</translation>
    </message>
    <message>
        <source>--to names no file</source>
        <translation>--to n’indique aucun fichier</translation>
    </message>
    <message>
        <source>mix the kept tracks of a recording anew, in its place or into a new file</source>
        <translation>mixer à nouveau les pistes conservées d’un enregistrement, sur place ou dans un nouveau fichier</translation>
    </message>
    <message>
        <source>Make the input louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>Augmenter l’entrée de DB décibels, ou la baisser si la valeur est négative&#xa0;; -60 correspond au silence.</translation>
    </message>
    <message>
        <source>Make computer audio louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>Augmenter le son de l’ordinateur de DB décibels, ou le baisser si la valeur est négative&#xa0;; -60 correspond au silence.</translation>
    </message>
    <message>
        <source>Move computer audio MS milliseconds later, or earlier when it is negative; at most 2000.</source>
        <translation>Retarder le son de l’ordinateur de MS millisecondes, ou l’avancer si la valeur est négative&#xa0;; au plus 2000.</translation>
    </message>
    <message>
        <source>Make the microphone louder against what the computer played.</source>
        <translation>Augmenter le micro par rapport au son joué par l’ordinateur.</translation>
    </message>
    <message>
        <source>Move computer audio 120 milliseconds later, in a new file.</source>
        <translation>Retarder le son de l’ordinateur de 120 millisecondes, dans un nouveau fichier.</translation>
    </message>
    <message>
        <source>Of a recording of both sources, also keep the input and computer audio, each as a file of its own beside the mix.</source>
        <translation>Pour un enregistrement des deux sources, conserver aussi l’entrée et le son de l’ordinateur, chacun dans son propre fichier à côté du mixage.</translation>
    </message>
</context>
<context>
    <name>Control</name>
    <message>
        <source>%1: no such folder</source>
        <translation>%1&#xa0;: dossier introuvable</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1&#xa0;: fichier introuvable</translation>
    </message>
    <message>
        <source>%1: the folder cannot be created</source>
        <translation>%1&#xa0;: impossible de créer le dossier</translation>
    </message>
    <message>
        <source>the file or its tags could not be written</source>
        <translation>impossible d’écrire le fichier ou ses étiquettes</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Ce chemin existe déjà, veuillez changer le chemin ou le nom.</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>arrêt avant la fin</translation>
    </message>
    <message>
        <source>a part of it is damaged and cannot be measured</source>
        <translation>une partie est endommagée et ne peut pas être mesurée</translation>
    </message>
    <message>
        <source>%1 joined</source>
        <translation>%1 réuni</translation>
    </message>
</context>
<context>
    <name>ControlRequests</name>
    <message>
        <source>the program is ending</source>
        <translation>le programme se termine</translation>
    </message>
    <message>
        <source>there is no source to record</source>
        <translation>il n’y a aucune source à enregistrer</translation>
    </message>
    <message>
        <source>nothing is being recorded</source>
        <translation>aucun enregistrement en cours</translation>
    </message>
    <message>
        <source>unknown request</source>
        <translation>requête inconnue</translation>
    </message>
    <message>
        <source>there is no path</source>
        <translation>il n’y a pas de chemin</translation>
    </message>
</context>
<context>
    <name>ConvertingTipView</name>
    <message>
        <source>Converting notice</source>
        <translation>Avis de conversion</translation>
    </message>
    <message>
        <source>The recording is converted.</source>
        <translation>L’enregistrement est converti.</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>the password prompt was cancelled</source>
        <translation>la demande de mot de passe a été annulée</translation>
    </message>
    <message>
        <source>pkexec is not installed: administrator rights cannot be requested</source>
        <translation>pkexec n’est pas installé&#xa0;: impossible de demander les droits d’administrateur</translation>
    </message>
    <message>
        <source>administrator rights were not given</source>
        <translation>les droits d’administrateur n’ont pas été accordés</translation>
    </message>
    <message>
        <source>the command ended with status %1</source>
        <translation>la commande s’est terminée avec l’état %1</translation>
    </message>
</context>
<context>
    <name>DesktopMain</name>
    <message>
        <source>%1 was not opened: the running program does not answer</source>
        <translation>%1 n’a pas été ouvert&#xa0;: le programme en cours d’exécution ne répond pas</translation>
    </message>
    <message>
        <source>it is already running, but does not answer</source>
        <translation>il est déjà en cours d’exécution, mais ne répond pas</translation>
    </message>
    <message>
        <source>Nothing can be recorded or played.</source>
        <translation>Rien ne peut être enregistré ni lu.</translation>
    </message>
    <message>
        <source>Sonaphex cannot start.</source>
        <translation>Sonaphex ne peut pas démarrer.</translation>
    </message>
</context>
<context>
    <name>Disc</name>
    <message>
        <source>%1: its rate cannot be converted</source>
        <translation>%1&#xa0;: impossible de convertir sa fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>%1: contains no audio</source>
        <translation>%1&#xa0;: ne contient pas d’audio</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1&#xa0;: dossier introuvable</translation>
    </message>
    <message>
        <source>%1: exists already, and an image replaces no file; choose another name</source>
        <translation>%1&#xa0;: existe déjà, et une image ne remplace aucun fichier&#xa0;; choisissez un autre nom</translation>
    </message>
    <message>
        <source>%1: a cue sheet cannot name a file with quotation marks or line ends; choose another name</source>
        <translation>%1&#xa0;: une feuille CUE ne peut pas nommer un fichier contenant des guillemets ou des fins de ligne&#xa0;; choisissez un autre nom</translation>
    </message>
    <message>
        <source>a file cannot be read: nothing was burned</source>
        <translation>un fichier est illisible&#xa0;: rien n’a été gravé</translation>
    </message>
    <message>
        <source>there is nothing to burn: no file is ticked</source>
        <translation>il n’y a rien à graver&#xa0;: aucun fichier n’est coché</translation>
    </message>
    <message>
        <source>an audio CD holds at most %1 tracks, these are %2</source>
        <translation>un CD audio contient au plus %1 pistes, il y en a ici %2</translation>
    </message>
    <message>
        <source>Write Disc Image</source>
        <translation>Écrire une image disque</translation>
    </message>
    <message>
        <source>The image cannot be written there.</source>
        <translation>L’image ne peut pas être écrite à cet endroit.</translation>
    </message>
    <message>
        <source>no path was given for the disc image</source>
        <translation>aucun chemin n’a été indiqué pour l’image disque</translation>
    </message>
    <message>
        <source>%1: the disk is full: the image needs %2, %3 are free</source>
        <translation>%1&#xa0;: le disque est plein&#xa0;: l’image nécessite %2, %3 sont libres</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1&#xa0;: écriture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1&#xa0;: lecture impossible</translation>
    </message>
    <message>
        <source>%1: is not an audio file</source>
        <translation>%1&#xa0;: n’est pas un fichier audio</translation>
    </message>
    <message>
        <source>it was stopped before the end: nothing was written</source>
        <translation>arrêt avant la fin&#xa0;: rien n’a été écrit</translation>
    </message>
    <message>
        <source>the drive cannot be opened</source>
        <translation>impossible d’ouvrir le graveur</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1&#xa0;: il n’y a pas de disque dans le graveur</translation>
    </message>
    <message>
        <source>%1: the disc is not blank</source>
        <translation>%1&#xa0;: le disque n’est pas vierge</translation>
    </message>
    <message>
        <source>%1: the drive does not get ready</source>
        <translation>%1&#xa0;: le graveur ne devient pas prêt</translation>
    </message>
    <message>
        <source>%1: this disc cannot be written to</source>
        <translation>%1&#xa0;: impossible d’écrire sur ce disque</translation>
    </message>
    <message>
        <source>the disc cannot be written like this: %1</source>
        <translation>impossible d’écrire le disque ainsi&#xa0;: %1</translation>
    </message>
    <message>
        <source>the drive gave no reason</source>
        <translation>le graveur n’a donné aucune raison</translation>
    </message>
    <message>
        <source>it was stopped before the end: the disc may be unusable</source>
        <translation>arrêt avant la fin&#xa0;: le disque est peut-être inutilisable</translation>
    </message>
    <message>
        <source>it was stopped before the first sector: the disc is as it was</source>
        <translation>arrêt avant le premier secteur&#xa0;: le disque est resté tel quel</translation>
    </message>
    <message>
        <source>%1: an audio CD needs a CD-R or a CD-RW, this is a %2</source>
        <translation>%1&#xa0;: un CD audio nécessite un CD-R ou un CD-RW, disque présent&#xa0;: %2</translation>
    </message>
    <message>
        <source>disc of another kind</source>
        <translation>disque d’un autre type</translation>
    </message>
    <message>
        <source>the layout of the disc could not be made</source>
        <translation>la disposition du disque n’a pas pu être créée</translation>
    </message>
    <message>
        <source>%1 (the disc is unusable)</source>
        <translation>%1 (le disque est inutilisable)</translation>
    </message>
    <message>
        <source>%1: the burn failed: %2</source>
        <translation>%1&#xa0;: la gravure a échoué&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: this disc cannot be erased</source>
        <translation>%1&#xa0;: ce disque ne peut pas être effacé</translation>
    </message>
    <message>
        <source>%1: the erase failed: %2</source>
        <translation>%1&#xa0;: l’effacement a échoué&#xa0;: %2</translation>
    </message>
    <message>
        <source>no right to use %1: join the group that owns it (often &quot;cdrom&quot;) and log in again</source>
        <translation>pas le droit d’utiliser %1&#xa0;: rejoignez le groupe qui le possède (souvent «&#xa0;cdrom&#xa0;») et reconnectez-vous</translation>
    </message>
    <message>
        <source>another program uses the drive, or its disc is mounted</source>
        <translation>un autre programme utilise le graveur, ou son disque est monté</translation>
    </message>
    <message>
        <source>the drive is gone</source>
        <translation>le graveur a disparu</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>impossible d’ouvrir %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1&#xa0;: fichier introuvable</translation>
    </message>
    <message>
        <source>%1: is not a file</source>
        <translation>%1&#xa0;: n’est pas un fichier</translation>
    </message>
    <message>
        <source>%1: no right to read it</source>
        <translation>%1&#xa0;: pas le droit de le lire</translation>
    </message>
    <message>
        <source>%1: is empty</source>
        <translation>%1&#xa0;: est vide</translation>
    </message>
    <message>
        <source>%1: the file ends earlier than when it was measured</source>
        <translation>%1&#xa0;: le fichier se termine plus tôt que lors de sa mesure</translation>
    </message>
    <message>
        <source>there is not enough room on the disc: the tracks need %1 minutes (%2 sectors), %3 minutes (%4 sectors) are free</source>
        <translation>place insuffisante sur le disque&#xa0;: les pistes nécessitent %1 minutes (%2 secteurs), %3 minutes (%4 secteurs) sont libres</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
</context>
<context>
    <name>EditWindows</name>
    <message>
        <source>%1 cannot be opened: close the open dialog first.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: fermez d’abord la boîte de dialogue ouverte.</translation>
    </message>
    <message>
        <source>The tracks cannot be mixed.</source>
        <translation>Impossible de mixer les pistes.</translation>
    </message>
</context>
<context>
    <name>FilteredAudioModel</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>Foundation</name>
    <message>
        <source>%1: another program is using it</source>
        <translation>%1&#xa0;: un autre programme l’utilise</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>%1 is a link</source>
        <translation>%1 est un lien</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 n’est pas un dossier</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>%1 is open to others</source>
        <translation>%1 est ouvert à d’autres utilisateurs</translation>
    </message>
    <message>
        <source>a part of the program is missing: %1</source>
        <translation>une partie du programme manque&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 is already answered</source>
        <translation>un programme répond déjà sur %1</translation>
    </message>
    <message>
        <source>%1 is not a socket of this user</source>
        <translation>%1 n’est pas un socket de cet utilisateur</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>est un lien</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>is larger than %1</source>
        <translation>dépasse %1</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>Sonaphex support</source>
        <translation>Assistance de Sonaphex</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>Rien n’est enregistré</translation>
    </message>
    <message>
        <source>Look whether a source is chosen in the main window: an input device, the computer&apos;s audio, or both. In a terminal, &lt;code&gt;sonaphex devices&lt;/code&gt; lists the input devices that the sound server offers.</source>
        <translation>Vérifiez qu’une source est choisie dans la fenêtre principale&#xa0;: un périphérique d’entrée, le son de l’ordinateur, ou les deux. Dans un terminal, &lt;code&gt;sonaphex devices&lt;/code&gt; donne la liste des périphériques d’entrée que propose le serveur de son.</translation>
    </message>
    <message>
        <source>A recording of the computer&apos;s audio alone begins with the first sound that the computer plays.</source>
        <translation>Un enregistrement du son de l’ordinateur seul commence au premier son que joue l’ordinateur.</translation>
    </message>
    <message>
        <source>A recording is missing</source>
        <translation>Un enregistrement manque</translation>
    </message>
    <message>
        <source>Recordings shorter than the time that is set in the preferences are dropped; switch the filter off to keep them. What could not be finished, for instance on a full disk, lies in &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</source>
        <translation>Les enregistrements plus courts que la durée définie dans les préférences sont rejetés&#xa0;; désactivez le filtre pour les conserver. Ce qui n’a pas pu être terminé, par exemple parce que le disque était plein, se trouve dans &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</translation>
    </message>
    <message>
        <source>The computer&apos;s audio cannot be chosen</source>
        <translation>Le son de l’ordinateur ne peut pas être choisi</translation>
    </message>
    <message>
        <source>It needs a small add-on: see &lt;a href=&quot;computer-audio.html&quot;&gt;recording the computer&apos;s audio&lt;/a&gt;.</source>
        <translation>Un petit module complémentaire est nécessaire&#xa0;: voir &lt;a href=&quot;computer-audio.html&quot;&gt;enregistrer le son de l’ordinateur&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The settings are gone</source>
        <translation>Les réglages ont disparu</translation>
    </message>
    <message>
        <source>They are in &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. A damaged file is kept beside it under a name that ends in &lt;code&gt;.damaged-&lt;/code&gt; and the date.</source>
        <translation>Ils se trouvent dans &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. Un fichier endommagé est conservé à côté, sous un nom qui se termine par &lt;code&gt;.damaged-&lt;/code&gt; et la date.</translation>
    </message>
    <message>
        <source>Recording the computer&apos;s audio</source>
        <translation>Enregistrer le son de l’ordinateur</translation>
    </message>
    <message>
        <source>The add-on is an input device named “Korvane System Audio” that hears what the default output plays. It is a small program of the user&apos;s session that speaks to the sound server; it changes nothing in what you hear, and it never becomes the default microphone of other programs.</source>
        <translation>Le module complémentaire est un périphérique d’entrée nommé «&#xa0;Korvane System Audio&#xa0;», qui capte ce que joue la sortie par défaut. C’est un petit programme de la session de l’utilisateur qui communique avec le serveur de son&#xa0;; il ne change rien à ce que vous entendez et ne devient jamais le microphone par défaut d’autres programmes.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Choose Install in the preferences window, or run &lt;code&gt;sonaphex driver install&lt;/code&gt;. The password of an administrator is asked for once: the add-on is installed for all users of the computer.</source>
        <translation>Choisissez «&#xa0;Installer&#xa0;» dans la fenêtre des préférences, ou exécutez &lt;code&gt;sonaphex driver install&lt;/code&gt;. Le mot de passe d’un administrateur est demandé une fois&#xa0;: le module est installé pour tous les utilisateurs de l’ordinateur.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Désinstaller</translation>
    </message>
    <message>
        <source>Choose Remove in the same place, or run &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</source>
        <translation>Choisissez «&#xa0;Désinstaller&#xa0;» au même endroit, ou exécutez &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</translation>
    </message>
</context>
<context>
    <name>ID3EditSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe plus.</translation>
    </message>
    <message>
        <source>The cover of “%1” could not be written.</source>
        <translation>La pochette de «&#xa0;%1&#xa0;» n’a pas pu être écrite.</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written.</source>
        <translation>Les étiquettes de «&#xa0;%1&#xa0;» n’ont pas pu être écrites.</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written: %2</source>
        <translation>Les étiquettes de «&#xa0;%1&#xa0;» n’ont pas pu être écrites&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ID3EditWnd</name>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>Choose a picture for the cover</source>
        <translation>Choisir une image pour la pochette</translation>
    </message>
    <message>
        <source>Drop a picture here. Drag it out to remove it.</source>
        <translation>Déposez une image ici. Faites-la glisser dehors pour la retirer.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>A&amp;rtist:</source>
        <translation>A&amp;rtiste&#xa0;:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Al&amp;bum:</source>
        <translation>Al&amp;bum&#xa0;:</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Année&#xa0;:</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Genre&#xa0;:</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>Ter&amp;miné</translation>
    </message>
</context>
<context>
    <name>ID3EditWndController</name>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>This file is not a picture.</source>
        <translation>Ce fichier n’est pas une image.</translation>
    </message>
    <message>
        <source>Not everything could be saved.</source>
        <translation>Tout n’a pas pu être sauvegardé.</translation>
    </message>
    <message>
        <source>ID3 converter......</source>
        <translation>Conversion ID3......</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Control</source>
        <comment>a key of the keyboard</comment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Super</source>
        <comment>a key of the keyboard</comment>
        <translation>Super</translation>
    </message>
    <message>
        <source>Shift</source>
        <comment>a key of the keyboard</comment>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Alt</source>
        <comment>a key of the keyboard</comment>
        <translation>Alt</translation>
    </message>
</context>
<context>
    <name>KeybordShortcutTextView</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>The desktop has no keys for this. Choose some in its settings.</source>
        <translation>Le bureau n’a pas de touches pour ceci. Choisissez-en dans ses paramètres.</translation>
    </message>
    <message>
        <source>These keys are set in the desktop&apos;s settings.</source>
        <translation>Ces touches sont définies dans les paramètres du bureau.</translation>
    </message>
    <message>
        <source>No keys in the desktop&apos;s settings</source>
        <translation>Aucune touche dans les paramètres du bureau</translation>
    </message>
    <message>
        <source>Click, then press the keys</source>
        <translation>Cliquez, puis appuyez sur les touches</translation>
    </message>
    <message>
        <source>Press the keys</source>
        <translation>Appuyez sur les touches</translation>
    </message>
</context>
<context>
    <name>LibraryOutlineModel</name>
    <message numerus="yes">
        <source>%n recording(s)</source>
        <translation>
            <numerusform>%n enregistrement</numerusform>
            <numerusform>%n enregistrements</numerusform>
        </translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Titre</translation>
    </message>
</context>
<context>
    <name>LibraryPresenter</name>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>Le fichier n’existe plus&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be played.</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” cannot be played: %2</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The folder of “%1” could not be shown.</source>
        <translation>Impossible d’afficher le dossier de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>Impossible d’ouvrir un lecteur pour «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>&amp;Record</source>
        <translation>En&amp;registrement</translation>
    </message>
    <message>
        <source>&amp;Cut to Another Recording</source>
        <translation>Passer à un &amp;nouvel enregistrement</translation>
    </message>
    <message>
        <source>Close this file and go on in a new one</source>
        <translation>Fermer ce fichier et continuer dans un nouveau</translation>
    </message>
    <message>
        <source>Record the &amp;Input Device</source>
        <translation>Enregistrer le périphérique d’&amp;entrée</translation>
    </message>
    <message>
        <source>Record Computer &amp;Audio</source>
        <translation>Enregistrer le son de l’&amp;ordinateur</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>&amp;Modifier les étiquettes…</translation>
    </message>
    <message>
        <source>Title, artist, album and cover of the recording</source>
        <translation>Titre, artiste, album et pochette de l’enregistrement</translation>
    </message>
    <message>
        <source>T&amp;rim…</source>
        <translation>&amp;Rogner…</translation>
    </message>
    <message>
        <source>Keep a part of the recording</source>
        <translation>Conserver une partie de l’enregistrement</translation>
    </message>
    <message>
        <source>Make a &amp;Ringtone…</source>
        <translation>Créer une &amp;sonnerie…</translation>
    </message>
    <message>
        <source>Cut a ringtone out of the recording</source>
        <translation>Découper une sonnerie dans l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>Delete the selected recordings and their files</source>
        <translation>Supprimer les enregistrements sélectionnés et leurs fichiers</translation>
    </message>
    <message>
        <source>&amp;Search…</source>
        <translation>Re&amp;chercher…</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>Rechercher dans les titres, artistes et albums</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>&amp;Bibliothèque</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lire</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Lire ou mettre en pause</translation>
    </message>
    <message>
        <source>Play the &amp;Selected Recording</source>
        <translation>Lire l’enregistrement &amp;sélectionné</translation>
    </message>
    <message>
        <source>Play from its beginning</source>
        <translation>Lire depuis le début</translation>
    </message>
    <message>
        <source>Back %1 Seconds</source>
        <translation>Reculer de %1 secondes</translation>
    </message>
    <message>
        <source>Forward %1 Seconds</source>
        <translation>Avancer de %1 secondes</translation>
    </message>
    <message>
        <source>S&amp;how in Folder</source>
        <translation>Afficher dans le &amp;dossier</translation>
    </message>
    <message>
        <source>Show the file in the file manager</source>
        <translation>Afficher le fichier dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>&amp;Open in Player</source>
        <translation>&amp;Ouvrir dans le lecteur</translation>
    </message>
    <message>
        <source>Open the file in your music player</source>
        <translation>Ouvrir le fichier dans votre lecteur de musique</translation>
    </message>
    <message>
        <source>&amp;Burn to Disc…</source>
        <translation>&amp;Graver sur un disque…</translation>
    </message>
    <message>
        <source>Make an audio CD of this list</source>
        <translation>Créer un CD audio de cette liste</translation>
    </message>
    <message>
        <source>&amp;Find Short Recordings…</source>
        <translation>&amp;Trouver les enregistrements courts…</translation>
    </message>
    <message>
        <source>Find recordings that are too short to keep</source>
        <translation>Trouver les enregistrements trop courts pour être conservés</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Switch the Display</source>
        <translation>&amp;Basculer l’afficheur</translation>
    </message>
    <message>
        <source>Level of the recording, or position of the playback</source>
        <translation>Niveau de l’enregistrement, ou position de la lecture</translation>
    </message>
    <message>
        <source>Show the Next &amp;Notice</source>
        <translation>Afficher l’avis &amp;suivant</translation>
    </message>
    <message>
        <source>Several notices stand in the display</source>
        <translation>Plusieurs avis figurent dans l’afficheur</translation>
    </message>
    <message>
        <source>&amp;Dismiss All Notices</source>
        <translation>&amp;Fermer tous les avis</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Support Page</source>
        <translation>Page d’&amp;assistance</translation>
    </message>
    <message>
        <source>Computer-Audio &amp;Add-on Page</source>
        <translation>Page du &amp;module du son de l’ordinateur</translation>
    </message>
    <message>
        <source>&amp;Install the Computer-Audio Device…</source>
        <translation>&amp;Installer le périphérique du son de l’ordinateur…</translation>
    </message>
    <message>
        <source>A&amp;bout Sonaphex</source>
        <translation>À &amp;propos de Sonaphex</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Ringtone</source>
        <translation>Sonnerie</translation>
    </message>
    <message>
        <source>Edit Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Graver</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Open in player</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>Choisissez d’abord l’entrée, le son de l’ordinateur, ou les deux.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>Aucun enregistrement en cours.</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>Il est déjà installé.</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>Le périphérique reste tel quel jusqu’à la fin de l’enregistrement.</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Les sources restent telles quelles jusqu’à la fin de l’enregistrement.</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Nothing is playing.</source>
        <translation>Aucune lecture en cours.</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice</source>
        <translation>&amp;Répondre à l’avis</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice: %1</source>
        <translation>&amp;Répondre à l’avis&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no other notice.</source>
        <translation>Il n’y a pas d’autre avis.</translation>
    </message>
    <message>
        <source>This notice offers nothing.</source>
        <translation>Cet avis ne propose rien.</translation>
    </message>
    <message>
        <source>There is no notice.</source>
        <translation>Il n’y a pas d’avis.</translation>
    </message>
    <message>
        <source>Select a recording first.</source>
        <translation>Sélectionnez d’abord un enregistrement.</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>Sélectionnez d’abord un enregistrement. Rien n’est lu pendant un enregistrement.</translation>
    </message>
    <message>
        <source>Arrives in a later version of Sonaphex.</source>
        <translation>Arrivera dans une version ultérieure de Sonaphex.</translation>
    </message>
    <message>
        <source>There is nothing in this list.</source>
        <translation>Il n’y a rien dans cette liste.</translation>
    </message>
    <message>
        <source>About Sonaphex</source>
        <translation>À propos de Sonaphex</translation>
    </message>
    <message>
        <source>Sonaphex %1</source>
        <translation>Sonaphex %1</translation>
    </message>
    <message>
        <source>Records what the computer plays, what a microphone hears, or both.

© 2026 The Sonaphex authors. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Enregistre le son joué par l’ordinateur, celui d’un micro, ou les deux.

© 2026 Les auteurs de Sonaphex. Logiciel libre sous licence publique générale GNU, version 3 ou ultérieure.</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <source>&amp;Unsorted</source>
        <translation>&amp;Non trié</translation>
    </message>
    <message>
        <source>Sp&amp;lit at Silences…</source>
        <translation>Di&amp;viser aux silences…</translation>
    </message>
    <message>
        <source>Cut the recording into several at its silences</source>
        <translation>Diviser l’enregistrement en plusieurs à ses silences</translation>
    </message>
    <message>
        <source>&amp;Join…</source>
        <translation>Réu&amp;nir…</translation>
    </message>
    <message>
        <source>Make one recording of the selected ones, in the order of the list</source>
        <translation>Réunir les enregistrements sélectionnés en un seul, dans l’ordre de la liste</translation>
    </message>
    <message>
        <source>Select two recordings or more first.</source>
        <translation>Sélectionnez d’abord au moins deux enregistrements.</translation>
    </message>
    <message>
        <source>&amp;Balance…</source>
        <translation>&amp;Balance…</translation>
    </message>
    <message>
        <source>Mix the input and computer audio of the recording anew</source>
        <translation>Mixer à nouveau l’entrée et le son de l’ordinateur de l’enregistrement</translation>
    </message>
    <message>
        <source>This recording has no tracks. The preferences have a box that keeps those of the next ones.</source>
        <translation>Cet enregistrement n’a pas de pistes. Une case des préférences permet de conserver celles des prochains.</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Start or stop recording</source>
        <translation>Démarrer ou arrêter l’enregistrement</translation>
    </message>
    <message>
        <source>Pause or resume recording</source>
        <translation>Suspendre ou reprendre l’enregistrement</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>Passer à un nouvel enregistrement</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Afficheur</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>E&amp;ntrée</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>Enregistrer le périphérique d’entrée choisi</translation>
    </message>
    <message>
        <source>Record the input device</source>
        <translation>Enregistrer le périphérique d’entrée</translation>
    </message>
    <message>
        <source>Input device</source>
        <translation>Périphérique d’entrée</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>Son de l’&amp;ordinateur</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>Enregistrer le son joué par l’ordinateur</translation>
    </message>
    <message>
        <source>Record computer audio</source>
        <translation>Enregistrer le son de l’ordinateur</translation>
    </message>
    <message>
        <source>Lost frames</source>
        <translation>Trames perdues</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Bibliothèque</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Programs to record</source>
        <translation>Programmes à enregistrer</translation>
    </message>
</context>
<context>
    <name>MainWndController</name>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>Le périphérique du son de l’ordinateur est installé.</translation>
    </message>
    <message>
        <source>The computer-audio device is installed. What the computer plays is recorded from now on.</source>
        <translation>Le périphérique du son de l’ordinateur est installé. Le son joué par l’ordinateur est désormais enregistré.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is shorter than %2 s.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été ajouté&#xa0;: il dure moins de %2&#xa0;s.</translation>
    </message>
    <message>
        <source>%1 selected, %2 together</source>
        <translation>%1 sélectionnés, %2 au total</translation>
    </message>
    <message>
        <source>No title, artist or album here has “%1” in it.</source>
        <translation>Aucun titre, artiste ou album ne contient ici «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The recording appears here when it has ended.</source>
        <translation>L’enregistrement apparaîtra ici lorsqu’il sera terminé.</translation>
    </message>
    <message>
        <source>Nothing here yet. Press the red button to make your first recording.</source>
        <translation>Encore rien ici. Cliquez sur le bouton rouge pour faire votre premier enregistrement.</translation>
    </message>
    <message>
        <source>Ringtones that you make of your recordings appear here.</source>
        <translation>Les sonneries que vous créez à partir de vos enregistrements apparaissent ici.</translation>
    </message>
    <message>
        <source>Recordings that you make now appear here.</source>
        <translation>Les enregistrements que vous faites maintenant apparaissent ici.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>cannot be read from the beginning</source>
        <translation>lecture impossible depuis le début</translation>
    </message>
    <message>
        <source>audio files cannot be read: %1</source>
        <translation>impossible de lire les fichiers audio&#xa0;: %1</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>lecture impossible</translation>
    </message>
    <message>
        <source>not an audio file, or too damaged to be read</source>
        <translation>pas un fichier audio, ou trop endommagé pour être lu</translation>
    </message>
    <message>
        <source>the file contains no audio</source>
        <translation>le fichier ne contient pas d’audio</translation>
    </message>
    <message>
        <source>its audio format is not supported</source>
        <translation>son format audio n’est pas pris en charge</translation>
    </message>
    <message>
        <source>no decoder for its audio format</source>
        <translation>aucun décodeur pour son format audio</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>impossible de décoder son audio</translation>
    </message>
    <message>
        <source>damaged at frame %1 (%2)</source>
        <translation>endommagé à la trame %1 (%2)</translation>
    </message>
    <message>
        <source>channels that cannot be mixed</source>
        <translation>canaux impossibles à mixer</translation>
    </message>
    <message>
        <source>not a finished recording of Sonaphex</source>
        <translation>pas un enregistrement terminé de Sonaphex</translation>
    </message>
    <message>
        <source>its index is damaged</source>
        <translation>son index est endommagé</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the AAC encoder failed</source>
        <translation>l’encodeur AAC a échoué</translation>
    </message>
    <message>
        <source>the encoder is missing: %1</source>
        <translation>l’encodeur manque&#xa0;: %1</translation>
    </message>
    <message>
        <source>the encoder does not take this rate or channel count</source>
        <translation>l’encodeur n’accepte pas cette fréquence d’échantillonnage ou ce nombre de canaux</translation>
    </message>
    <message>
        <source>the rate cannot be converted</source>
        <translation>impossible de convertir la fréquence d’échantillonnage</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>this format cannot be written</source>
        <translation>impossible d’écrire ce format</translation>
    </message>
    <message>
        <source>too deeply nested</source>
        <translation>imbrication trop profonde</translation>
    </message>
    <message>
        <source>a box of impossible size</source>
        <translation>une boîte de taille impossible</translation>
    </message>
    <message>
        <source>too many boxes</source>
        <translation>trop de boîtes</translation>
    </message>
    <message>
        <source>a box larger than the one around it</source>
        <translation>une boîte plus grande que celle qui l’entoure</translation>
    </message>
    <message>
        <source>a table that is larger than its box</source>
        <translation>une table plus grande que sa boîte</translation>
    </message>
    <message>
        <source>not an MPEG-4 file</source>
        <translation>pas un fichier MPEG-4</translation>
    </message>
    <message>
        <source>the file ends within its index</source>
        <translation>le fichier se termine au milieu de son index</translation>
    </message>
    <message>
        <source>the file has no index</source>
        <translation>le fichier n’a pas d’index</translation>
    </message>
    <message>
        <source>a packet of the recording cannot be read</source>
        <translation>un paquet de l’enregistrement est illisible</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>arrêt avant la fin</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>impossible de lire %1</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>le serveur de son a disparu</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>aucun serveur de son ne répond&#xa0;: %1</translation>
    </message>
    <message>
        <source>the sound server refused the stream</source>
        <translation>le serveur de son a refusé le flux</translation>
    </message>
    <message>
        <source>its tags cannot be written</source>
        <translation>impossible d’écrire ses étiquettes</translation>
    </message>
    <message>
        <source>cannot write the tags of %1: %2</source>
        <translation>impossible d’écrire les étiquettes de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>cannot read the tags of %1: %2</source>
        <translation>impossible de lire les étiquettes de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>its tags cannot be read</source>
        <translation>impossible de lire ses étiquettes</translation>
    </message>
    <message>
        <source>cannot read the image %1: %2</source>
        <translation>impossible de lire l’image %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is neither a JPEG nor a PNG image</source>
        <translation>%1 n’est une image ni JPEG ni PNG</translation>
    </message>
    <message>
        <source>cannot write the artwork of %1 to %2: %3</source>
        <translation>impossible d’écrire la pochette de %1 dans %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>another program is changing it</source>
        <translation>un autre programme est en train de le modifier</translation>
    </message>
    <message>
        <source>its index cannot hold more</source>
        <translation>son index ne peut pas contenir davantage</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>le fichier est tronqué</translation>
    </message>
    <message>
        <source>its index is too large</source>
        <translation>son index est trop grand</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>il ne peut pas être lu</translation>
    </message>
    <message>
        <source>that path is not a regular file</source>
        <translation>ce chemin n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>its last box has no size</source>
        <translation>sa dernière boîte n’a pas de taille</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>Record Library</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Newly Recorded</source>
        <translation>Nouveaux</translation>
    </message>
    <message>
        <source>All Recorded</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Ringtone Library</source>
        <translation>Sonneries</translation>
    </message>
    <message>
        <source>Newly Ringtone</source>
        <translation>Nouvelles</translation>
    </message>
    <message>
        <source>All Ringtone</source>
        <translation>Toutes</translation>
    </message>
</context>
<context>
    <name>Platform::PortalAutostart</name>
    <message>
        <source>Sonaphex waits in the status bar.</source>
        <translation>Sonaphex attend dans la zone de notification.</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>le bureau ne l’a pas autorisé</translation>
    </message>
</context>
<context>
    <name>Players</name>
    <message>
        <source>the address is incomplete</source>
        <translation>l’adresse est incomplète</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>l’image est trop volumineuse</translation>
    </message>
    <message>
        <source>the picture is not a file of this machine</source>
        <translation>l’image n’est pas un fichier de cette machine</translation>
    </message>
</context>
<context>
    <name>PreferenceWnd</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>&amp;Recordings:</source>
        <translation>En&amp;registrements&#xa0;:</translation>
    </message>
    <message>
        <source>Folder of recordings</source>
        <translation>Dossier des enregistrements</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose the folder of recordings</source>
        <translation>Choisir le dossier des enregistrements</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>Show the folder of recordings</source>
        <translation>Afficher le dossier des enregistrements</translation>
    </message>
    <message>
        <source>Rin&amp;gtones:</source>
        <translation>Sonn&amp;eries&#xa0;:</translation>
    </message>
    <message>
        <source>Folder of ringtones</source>
        <translation>Dossier des sonneries</translation>
    </message>
    <message>
        <source>Choose the folder of ringtones</source>
        <translation>Choisir le dossier des sonneries</translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation>A&amp;fficher</translation>
    </message>
    <message>
        <source>Show the folder of ringtones</source>
        <translation>Afficher le dossier des sonneries</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>&amp;Split computer audio at a silence of</source>
        <translation>&amp;Diviser le son de l’ordinateur aux silences de</translation>
    </message>
    <message>
        <source>Split computer audio at silences</source>
        <translation>Diviser le son de l’ordinateur aux silences</translation>
    </message>
    <message>
        <source>Length of silence in milliseconds</source>
        <translation>Durée du silence en millisecondes</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>millisecondes</translation>
    </message>
    <message>
        <source>&amp;Leave out recordings shorter than</source>
        <translation>&amp;Ignorer les enregistrements de moins de</translation>
    </message>
    <message>
        <source>Leave out short recordings</source>
        <translation>Ignorer les enregistrements courts</translation>
    </message>
    <message>
        <source>Shortest recording in seconds</source>
        <translation>Durée minimale d’un enregistrement en secondes</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>&amp;Begin before the first sound by</source>
        <translation>&amp;Conserver avant le premier son</translation>
    </message>
    <message>
        <source>Time before the first sound in milliseconds</source>
        <translation>Temps avant le premier son en millisecondes</translation>
    </message>
    <message>
        <source>A recording of computer audio waits for the first sound. It then contains this much of the time before it.</source>
        <translation>Un enregistrement du son de l’ordinateur attend le premier son. Il contient alors aussi cette durée précédant celui-ci.</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>Son de l’ordinateur</translation>
    </message>
    <message>
        <source>State of the computer-audio device</source>
        <translation>État du périphérique du son de l’ordinateur</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>I&amp;nstaller</translation>
    </message>
    <message>
        <source>Install the computer-audio device</source>
        <translation>Installer le périphérique du son de l’ordinateur</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Dé&amp;sinstaller</translation>
    </message>
    <message>
        <source>Remove the computer-audio device</source>
        <translation>Désinstaller le périphérique du son de l’ordinateur</translation>
    </message>
    <message>
        <source>Working on the computer-audio device</source>
        <translation>Opération en cours sur le périphérique du son de l’ordinateur</translation>
    </message>
    <message>
        <source>Problem of the computer-audio device</source>
        <translation>Problème du périphérique du son de l’ordinateur</translation>
    </message>
    <message>
        <source>Shortcuts from any program</source>
        <translation>Raccourcis depuis tout programme</translation>
    </message>
    <message>
        <source>Star&amp;t or stop:</source>
        <translation>Démarrage ou arrê&amp;t&#xa0;:</translation>
    </message>
    <message>
        <source>Shortcut for start and stop</source>
        <translation>Raccourci pour démarrer et arrêter</translation>
    </message>
    <message>
        <source>&amp;Pause or resume:</source>
        <translation>&amp;Pause ou reprise&#xa0;:</translation>
    </message>
    <message>
        <source>Shortcut for pause and resume</source>
        <translation>Raccourci pour la pause et la reprise</translation>
    </message>
    <message>
        <source>&amp;New recording:</source>
        <translation>Nou&amp;vel enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>Shortcut for a new recording</source>
        <translation>Raccourci pour un nouvel enregistrement</translation>
    </message>
    <message>
        <source>Use the &amp;Defaults</source>
        <translation>Valeurs par défa&amp;ut</translation>
    </message>
    <message>
        <source>Use the default shortcuts</source>
        <translation>Utiliser les raccourcis par défaut</translation>
    </message>
    <message>
        <source>How to bind keys on this desktop</source>
        <translation>Comment associer des touches sur ce bureau</translation>
    </message>
    <message>
        <source>Commands to bind</source>
        <translation>Commandes à associer</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>N&amp;otify when a recording ends in the background</source>
        <translation>N&amp;otifier la fin d’un enregistrement en arrière-plan</translation>
    </message>
    <message>
        <source>Notify when a recording ends in the background</source>
        <translation>Notifier la fin d’un enregistrement en arrière-plan</translation>
    </message>
    <message>
        <source>A notification tells of finished and cut recordings, and of problems, while the window is not in front.</source>
        <translation>Une notification signale les enregistrements terminés ou coupés, et les problèmes, quand la fenêtre n’est pas au premier plan.</translation>
    </message>
    <message>
        <source>St&amp;art with the desktop, hidden</source>
        <translation>Démarrer avec le &amp;bureau, masqué</translation>
    </message>
    <message>
        <source>Start with the desktop, hidden</source>
        <translation>Démarrer avec le bureau, masqué</translation>
    </message>
    <message>
        <source>Sonaphex waits in the status bar after you log in.</source>
        <translation>Sonaphex attend dans la zone de notification après votre connexion.</translation>
    </message>
    <message>
        <source>Ta&amp;ke titles and covers from the media player</source>
        <translation>Prendre &amp;les titres et pochettes du lecteur multimédia</translation>
    </message>
    <message>
        <source>Take titles and covers from the media player</source>
        <translation>Prendre les titres et pochettes du lecteur multimédia</translation>
    </message>
    <message>
        <source>A recording of computer audio gets the title, artist, album and cover that the media player names for most of its length. Its file name stays as it is.</source>
        <translation>Un enregistrement du son de l’ordinateur reçoit le titre, l’artiste, l’album et la pochette que le lecteur multimédia indique pendant la plus grande partie de sa durée. Son nom de fichier reste tel quel.</translation>
    </message>
    <message>
        <source>Split &amp;computer audio when the media player changes the track</source>
        <translation>Diviser le son de l’ordinateur au c&amp;hangement de morceau du lecteur</translation>
    </message>
    <message>
        <source>Split computer audio when the media player changes the track</source>
        <translation>Diviser le son de l’ordinateur au changement de morceau du lecteur</translation>
    </message>
    <message>
        <source>For albums without silences between the tracks.</source>
        <translation>Pour les albums sans silence entre les morceaux.</translation>
    </message>
    <message>
        <source>K&amp;eep both tracks beside the mix</source>
        <translation>Conserver les deux pistes à côté du &amp;mixage</translation>
    </message>
    <message>
        <source>Keep both tracks beside the mix</source>
        <translation>Conserver les deux pistes à côté du mixage</translation>
    </message>
    <message>
        <source>A recording of both sources then also keeps the input and computer audio, each as a file of its own. Balance… mixes them anew. This takes three times the disk space, and more time after the recording.</source>
        <translation>Un enregistrement des deux sources conserve alors aussi l’entrée et le son de l’ordinateur, chacun dans son propre fichier. «&#xa0;Balance…&#xa0;» les mixe à nouveau. Cela occupe trois fois l’espace disque et demande plus de temps après l’enregistrement.</translation>
    </message>
</context>
<context>
    <name>PreferenceWndController</name>
    <message>
        <source>Start or stop the recording</source>
        <translation>Démarrer ou arrêter l’enregistrement</translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation>Suspendre ou reprendre l’enregistrement</translation>
    </message>
    <message>
        <source>Start a new recording</source>
        <translation>Démarrer un nouvel enregistrement</translation>
    </message>
    <message>
        <source>Sonaphex cannot be started with the desktop.</source>
        <translation>Sonaphex ne peut pas être démarré avec le bureau.</translation>
    </message>
    <message>
        <source>Sonaphex is still started with the desktop.</source>
        <translation>Sonaphex démarre toujours avec le bureau.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Nothing is split at a silence: check the box first.</source>
        <translation>Aucune division aux silences&#xa0;: cochez d’abord la case.</translation>
    </message>
    <message>
        <source>All recordings are kept: check the box first.</source>
        <translation>Tous les enregistrements sont conservés&#xa0;: cochez d’abord la case.</translation>
    </message>
    <message>
        <source>Installing the computer-audio device…</source>
        <translation>Installation du périphérique du son de l’ordinateur…</translation>
    </message>
    <message>
        <source>Removing the computer-audio device…</source>
        <translation>Désinstallation du périphérique du son de l’ordinateur…</translation>
    </message>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>Le périphérique du son de l’ordinateur est installé.</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>Le périphérique du son de l’ordinateur n’est pas installé.</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>Il est déjà installé.</translation>
    </message>
    <message>
        <source>There is nothing to remove.</source>
        <translation>Il n’y a rien à désinstaller.</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts.</source>
        <translation>Ce bureau n’autorise pas les raccourcis globaux.</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts. Bind these commands to keys in the desktop&apos;s own keyboard settings:</source>
        <translation>Ce bureau n’autorise pas les raccourcis globaux. Associez ces commandes à des touches dans les paramètres de clavier du bureau&#xa0;:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Attention&#xa0;:</translation>
    </message>
    <message>
        <source>You cannot save files in the folder. Read and write privilege is needed.</source>
        <translation>Vous ne pouvez pas sauvegarder de fichiers dans ce dossier. Les droits de lecture et d’écriture sont nécessaires.</translation>
    </message>
    <message>
        <source>Can not insert the system audio device, Please try it again.</source>
        <translation>Impossible d’insérer le périphérique de son du système, veuillez réessayer.</translation>
    </message>
</context>
<context>
    <name>ProcessWnd</name>
    <message>
        <source>Burn Progress</source>
        <translation>Progression de la gravure</translation>
    </message>
    <message>
        <source>Burn progress</source>
        <translation>Progression de la gravure</translation>
    </message>
    <message>
        <source>Burn state</source>
        <translation>État de la gravure</translation>
    </message>
</context>
<context>
    <name>ProcessWndController</name>
    <message>
        <source>A burn cannot be stopped before it has written 4 %.</source>
        <translation>Une gravure ne peut pas être arrêtée avant d’avoir écrit 4&#xa0;%.</translation>
    </message>
    <message>
        <source>Stops the burn; the disc is then unusable.</source>
        <translation>Arrête la gravure&#xa0;; le disque est alors inutilisable.</translation>
    </message>
    <message>
        <source>Burn Progress:</source>
        <translation>Progression de la gravure&#xa0;:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>Attention&#xa0;:</translation>
    </message>
    <message>
        <source>Are you sure to end the task?</source>
        <translation>Voulez-vous vraiment mettre fin à la tâche&#xa0;?</translation>
    </message>
    <message>
        <source>Please waiting a moment ...</source>
        <translation>Veuillez patienter un instant ...</translation>
    </message>
    <message>
        <source>Burning Disc...</source>
        <translation>Gravure du disque...</translation>
    </message>
</context>
<context>
    <name>ProgramsMenu</name>
    <message>
        <source>Programs to record</source>
        <translation>Programmes à enregistrer</translation>
    </message>
    <message>
        <source>Programs to record: %1</source>
        <translation>Programmes à enregistrer : %1</translation>
    </message>
    <message>
        <source>Of computer audio, this is recorded: %1</source>
        <translation>De l’audio de l’ordinateur, on enregistre : %1</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Les sources restent telles quelles jusqu’à la fin de l’enregistrement.</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>Le périphérique du son de l’ordinateur n’est pas installé.</translation>
    </message>
    <message>
        <source>&amp;Everything</source>
        <translation>&amp;Tout</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>&amp;Seulement</translation>
    </message>
    <message>
        <source>Everything &amp;but</source>
        <translation>Tout sau&amp;f</translation>
    </message>
    <message>
        <source>No program has played yet</source>
        <translation>Aucun programme n’a encore joué</translation>
    </message>
    <message>
        <source>P&amp;rograms to Record</source>
        <translation>&amp;Programmes à enregistrer</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Option «&#xa0;%1&#xa0;» inconnue.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Options inconnues&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Valeur manquante après «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Valeur inattendue après «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The sound server does not answer yet. Waiting for it…</source>
        <translation>Le serveur de son ne répond pas encore. En attente de sa réponse…</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>Ne pas attendre</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>Le périphérique reste tel quel jusqu’à la fin de l’enregistrement.</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d’écrire %1</translation>
    </message>
    <message>
        <source>Rec..</source>
        <translation>Enr..</translation>
    </message>
    <message>
        <source>Rec</source>
        <translation>Enr</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>En attente du premier son</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Enregistrement %1</translation>
    </message>
    <message>
        <source>Paused %1</source>
        <translation>En pause %1</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>Finalisation de l’enregistrement</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait ..</source>
        <translation>         Conversion du fichier audio
         Veuillez patienter ..</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait </source>
        <translation>         Conversion du fichier audio
         Veuillez patienter </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two paths</comment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>the reason is unknown</source>
        <translation>raison inconnue</translation>
    </message>
    <message>
        <source>The recording is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>L’enregistrement est conservé et sera déplacé au prochain démarrage s’il y a de la place&#xa0;; il se trouve ici&#xa0;:</translation>
    </message>
    <message>
        <source>The recording is kept at</source>
        <comment>a path follows</comment>
        <translation>L’enregistrement est conservé ici&#xa0;:</translation>
    </message>
    <message>
        <source>It is kept, and moved by the next start when there is room, at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>Elle est conservée et sera déplacée au prochain démarrage s’il y a de la place&#xa0;; elle se trouve ici&#xa0;:</translation>
    </message>
    <message>
        <source>It is kept at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>Elle est conservée ici&#xa0;:</translation>
    </message>
    <message>
        <source>What it was made from is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>Ses données d’origine sont conservées et seront déplacées au prochain démarrage s’il y a de la place&#xa0;; elles se trouvent ici&#xa0;:</translation>
    </message>
    <message>
        <source>What it was made from is kept at</source>
        <comment>a path follows</comment>
        <translation>Ses données d’origine sont conservées ici&#xa0;:</translation>
    </message>
    <message>
        <source>A part of the recording could not be written (error %1). What was written is kept.</source>
        <translation>Une partie de l’enregistrement n’a pas pu être écrite (erreur %1). Ce qui a été écrit est conservé.</translation>
    </message>
    <message>
        <source>%1: %2 could not be saved in “%3”.</source>
        <translation>%1&#xa0;: %2 n’a pas pu être sauvegardé dans «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>%1 could not be finished: %2.</source>
        <translation>%1 n’a pas pu être terminé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>One source of %1 could not be read (%2) and is missing in it.</source>
        <translation>Une source de %1 n’a pas pu être lue (%2) et y manque.</translation>
    </message>
    <message>
        <source>%1 could not be mixed: %2.</source>
        <translation>%1 n’a pas pu être mixé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The disk is nearly full: %1 could not be mixed, which needs %2 MB; %3 MB are left.</source>
        <translation>Le disque est presque plein&#xa0;: %1 n’a pas pu être mixé, ce qui nécessite %2&#xa0;Mo&#xa0;; il reste %3&#xa0;Mo.</translation>
    </message>
    <message>
        <source>%1 could not be encoded: %2.</source>
        <translation>%1 n’a pas pu être encodé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>A part of %1 could not be read (%2) and is missing in it.</source>
        <translation>Une partie de %1 n’a pas pu être lue (%2) et y manque.</translation>
    </message>
    <message>
        <source>%1 could not be tagged. Its audio is complete.</source>
        <translation>Les étiquettes de %1 n’ont pas pu être écrites. Son audio est complet.</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>moins d’une minute</translation>
    </message>
    <message>
        <source>about 1 minute</source>
        <translation>environ 1 minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes</source>
        <translation>
            <numerusform>environ %n minute</numerusform>
            <numerusform>environ %n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>Attention&#xa0;:</translation>
    </message>
    <message>
        <source>The application is reading your USB headset data, please do not unplug your USB headset, if you want to unplug your USB headset please turn off this application first， Otherwise give your computer some trouble.</source>
        <translation>L’application lit les données de votre casque USB, veuillez ne pas le débrancher. Si vous voulez débrancher votre casque USB, veuillez d’abord quitter cette application, sinon votre ordinateur pourrait rencontrer des problèmes.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2. Nothing is heard from it until it can.</source>
        <translation>Impossible d’ouvrir %1&#xa0;: %2. Aucun son n’en parviendra tant que cela dure.</translation>
    </message>
    <message>
        <source>%1 is gone. There is no other input device: connect one.</source>
        <translation>%1 a disparu. Il n’y a pas d’autre périphérique d’entrée&#xa0;: connectez-en un.</translation>
    </message>
    <message>
        <source>%1 is gone. %2 takes its place until it is back.</source>
        <translation>%1 a disparu. %2 prend sa place jusqu’à son retour.</translation>
    </message>
    <message>
        <source>The input device</source>
        <translation>Le périphérique d’entrée</translation>
    </message>
    <message>
        <source>the input device</source>
        <translation>le périphérique d’entrée</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>Le son de l’ordinateur</translation>
    </message>
    <message>
        <source>computer audio</source>
        <translation>le son de l’ordinateur</translation>
    </message>
    <message>
        <source>Add-on required to record the system audio.</source>
        <translation>Un module complémentaire est nécessaire pour enregistrer le son du système.</translation>
    </message>
    <message>
        <source>KorvanAudioDevice is easy to use, it simply accept system audio data, allowing any audio application to send and receive audio with no other support needed. KorvanAudioDevice is free, and runs on Linux computers. This driver will only be used by Sonaphex.</source>
        <translation>KorvanAudioDevice est facile à utiliser&#xa0;: il reçoit simplement le son du système et permet à toute application audio d’envoyer et de recevoir du son sans autre composant. KorvanAudioDevice est gratuit et fonctionne sur les ordinateurs Linux. Ce pilote ne sera utilisé que par Sonaphex.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Please stop your recording.</source>
        <translation>Veuillez arrêter votre enregistrement.</translation>
    </message>
    <message>
        <source>Stop Record</source>
        <translation>Arrêter l’enregistrement</translation>
    </message>
    <message>
        <source>Start Record</source>
        <translation>Démarrer l’enregistrement</translation>
    </message>
    <message>
        <source>Pause Record</source>
        <translation>Suspendre l’enregistrement</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>Aucun enregistrement en cours</translation>
    </message>
    <message>
        <source>The input device does not deliver. Nothing is recorded.</source>
        <translation>Le périphérique d’entrée ne fournit aucune donnée. Rien n’est enregistré.</translation>
    </message>
    <message>
        <source>Computer audio does not deliver. Nothing is recorded.</source>
        <translation>Le son de l’ordinateur ne fournit aucune donnée. Rien n’est enregistré.</translation>
    </message>
    <message>
        <source>There is no input device. Nothing is recorded.</source>
        <translation>Il n’y a pas de périphérique d’entrée. Rien n’est enregistré.</translation>
    </message>
    <message>
        <source>The input device does not deliver (%1). Nothing is recorded.</source>
        <translation>Le périphérique d’entrée ne fournit aucune donnée (%1). Rien n’est enregistré.</translation>
    </message>
    <message>
        <source>%1 is off: it did not start. This recording goes without it.</source>
        <translation>%1 est inactif&#xa0;: le démarrage a échoué. Cet enregistrement se fait sans cette source.</translation>
    </message>
    <message>
        <source>%1 is off: it did not start (%2). This recording goes without it.</source>
        <translation>%1 est inactif&#xa0;: le démarrage a échoué (%2). Cet enregistrement se fait sans cette source.</translation>
    </message>
    <message>
        <source>%1 is not being recorded: %2.</source>
        <translation>%1 n’est pas enregistré&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The recording could not be split (%1). It continues in the same file.</source>
        <translation>L’enregistrement n’a pas pu être divisé (%1). Il continue dans le même fichier.</translation>
    </message>
    <message>
        <source>The sound server</source>
        <translation>Le serveur de son</translation>
    </message>
    <message>
        <source>%1 went away. The wait for the first sound continues when it is back.</source>
        <translation>%1 a disparu. L’attente du premier son continuera à son retour.</translation>
    </message>
    <message>
        <source>%1 went away. The recording so far is kept and continues when it is back.</source>
        <translation>%1 a disparu. L’enregistrement effectué jusqu’ici est conservé et continuera à son retour.</translation>
    </message>
    <message>
        <source>%1 is back. The wait for the first sound goes on.</source>
        <translation>%1 est de retour. L’attente du premier son continue.</translation>
    </message>
    <message>
        <source>%1 s are missing: %2 was away. The recording goes on.</source>
        <translation>Il manque %1&#xa0;s&#xa0;: %2 était absent. L’enregistrement continue.</translation>
    </message>
    <message>
        <source>%1 s are missing (%2 frames): the computer was too busy to take them.</source>
        <translation>Il manque %1&#xa0;s (%2 trames)&#xa0;: l’ordinateur était trop occupé pour les recevoir.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing more is recorded until there is room; what was recorded is kept.</source>
        <translation>Le disque est plein. Plus rien n’est enregistré tant qu’il n’y a pas de place&#xa0;; ce qui a été enregistré est conservé.</translation>
    </message>
    <message>
        <source>%1. Nothing more is recorded; what was recorded is kept.</source>
        <translation>%1. Plus rien n’est enregistré&#xa0;; ce qui a été enregistré est conservé.</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays.</source>
        <translation>Le son de l’ordinateur est muet depuis %1&#xa0;s&#xa0;: rien n’est joué.</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays on %2, the output that is recorded.</source>
        <translation>Le son de l’ordinateur est muet depuis %1&#xa0;s&#xa0;: rien n’est joué sur %2, la sortie qui est enregistrée.</translation>
    </message>
    <message>
        <source>The input device is muted: only silence has been recorded for %1 s.</source>
        <translation>Le périphérique d’entrée est en sourdine&#xa0;: seul du silence est enregistré depuis %1&#xa0;s.</translation>
    </message>
    <message>
        <source>The input device has delivered only silence for %1 s. It may be switched off, or the wrong one: another one can be chosen when the recording is stopped.</source>
        <translation>Le périphérique d’entrée ne fournit que du silence depuis %1&#xa0;s. Il est peut-être éteint, ou ce n’est pas le bon&#xa0;: vous pourrez en choisir un autre une fois l’enregistrement arrêté.</translation>
    </message>
    <message>
        <source>The disk is nearly full: there is room for %1 of recording.</source>
        <translation>Le disque est presque plein&#xa0;: il reste de la place pour %1 d’enregistrement.</translation>
    </message>
    <message>
        <source>%1 s are missing: the disk was full. The recording went on in another file.</source>
        <translation>Il manque %1&#xa0;s&#xa0;: le disque était plein. L’enregistrement a continué dans un autre fichier.</translation>
    </message>
    <message>
        <source>An earlier recording could not be finished. It is kept at</source>
        <comment>a path follows</comment>
        <translation>Un enregistrement antérieur n’a pas pu être terminé. Il est conservé ici&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%n earlier recordings could not be finished. They are kept in</source>
        <comment>a path follows</comment>
        <translation>
            <numerusform>%n enregistrement antérieur n’a pas pu être terminé. Il est conservé dans</numerusform>
            <numerusform>%n enregistrements antérieurs n’ont pas pu être terminés. Ils sont conservés dans</numerusform>
        </translation>
    </message>
    <message>
        <source>Resume Record</source>
        <translation>Reprendre l’enregistrement</translation>
    </message>
    <message>
        <source>the input unit cannot be opened</source>
        <translation>impossible d’ouvrir l’unité d’entrée</translation>
    </message>
    <message>
        <source>there is no input unit</source>
        <translation>il n’y a pas d’unité d’entrée</translation>
    </message>
    <message>
        <source>the unit&apos;s output cannot be switched off</source>
        <translation>impossible de désactiver la sortie de l’unité</translation>
    </message>
    <message>
        <source>the device cannot be used</source>
        <translation>impossible d’utiliser le périphérique</translation>
    </message>
    <message>
        <source>the device accepts no callback</source>
        <translation>le périphérique n’accepte aucune fonction de rappel</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be read</source>
        <translation>impossible de lire le format du périphérique</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be captured</source>
        <translation>impossible de capturer le format du périphérique</translation>
    </message>
    <message>
        <source>the device&apos;s buffer size cannot be read</source>
        <translation>impossible de lire la taille du tampon du périphérique</translation>
    </message>
    <message>
        <source>the unit cannot be initialised</source>
        <translation>impossible d’initialiser l’unité</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>mémoire insuffisante</translation>
    </message>
    <message>
        <source>the device cannot be started</source>
        <translation>impossible de démarrer le périphérique</translation>
    </message>
    <message>
        <source>Less than a minute left on this disk</source>
        <translation>Il reste moins d’une minute sur ce disque</translation>
    </message>
    <message>
        <source>About %1 min left on this disk</source>
        <translation>Il reste environ %1&#xa0;min sur ce disque</translation>
    </message>
    <message>
        <source>About %1 h %2 min left on this disk</source>
        <translation>Il reste environ %1&#xa0;h %2&#xa0;min sur ce disque</translation>
    </message>
    <message>
        <source>%1 is complete, but its tracks could not be kept: %2.</source>
        <translation>%1 est complet, mais ses pistes n’ont pas pu être conservées&#xa0;: %2.</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>le disque est presque plein</translation>
    </message>
    <message>
        <source>%1 could not be saved beside its recording: %2.</source>
        <translation>%1 n’a pas pu être sauvegardé à côté de son enregistrement&#xa0;: %2.</translation>
    </message>
    <message>
        <source>An interrupted recording is complete now:</source>
        <comment>a path follows</comment>
        <translation>Un enregistrement interrompu est maintenant complet :</translation>
    </message>
    <message>
        <source>the recorded sound of a source is missing</source>
        <translation>le son enregistré d’une source manque</translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>Aucun enregistrement en cours.</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>Choisissez d’abord l’entrée, le son de l’ordinateur, ou les deux.</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>Sélectionnez d’abord un enregistrement. Rien n’est lu pendant un enregistrement.</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>Les sources restent telles quelles jusqu’à la fin de l’enregistrement.</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>Enregistrer le périphérique d’entrée choisi</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>Enregistrer le son joué par l’ordinateur</translation>
    </message>
    <message>
        <source>%1 s lost</source>
        <translation>%1&#xa0;s perdues</translation>
    </message>
    <message>
        <source>No frames lost</source>
        <translation>Aucune trame perdue</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 trames</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>Aucun enregistrement en cours</translation>
    </message>
    <message>
        <source>No sound server</source>
        <translation>Pas de serveur de son</translation>
    </message>
    <message>
        <source>No input device</source>
        <translation>Pas de périphérique d’entrée</translation>
    </message>
    <message>
        <source>Waiting for the first sound of computer audio</source>
        <translation>En attente du premier son de l’ordinateur</translation>
    </message>
    <message>
        <source>No sound server: a test tone is recorded</source>
        <translation>Pas de serveur de son&#xa0;: un signal d’essai est enregistré</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>Pas de périphérique</translation>
    </message>
    <message>
        <source>No input device was found.</source>
        <translation>Aucun périphérique d’entrée n’a été trouvé.</translation>
    </message>
    <message>
        <source>The input is not recorded: check the box first.</source>
        <translation>L’entrée n’est pas enregistrée&#xa0;: cochez d’abord la case.</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>Passer à un nouvel enregistrement</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>%1 – Sonaphex</source>
        <translation>%1 – Sonaphex</translation>
    </message>
</context>
<context>
    <name>RecordPrograms</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>Seulement %1</translation>
    </message>
    <message>
        <source>Everything but %1</source>
        <translation>Tout sauf %1</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>En attente de %1</translation>
    </message>
</context>
<context>
    <name>RecordStateController</name>
    <message>
        <source>A recording is running.</source>
        <translation>Un enregistrement est en cours.</translation>
    </message>
    <message>
        <source>%1 is off: %2.</source>
        <translation>%1 : désactivé, %2.</translation>
    </message>
    <message>
        <source>Computer audio (%1) has been silent for %2 s: nothing plays.</source>
        <translation>L’audio de l’ordinateur (%1) est silencieux depuis %2 s : rien ne joue.</translation>
    </message>
    <message>
        <source>another recording of computer audio runs with other programs</source>
        <translation>un autre enregistrement de l’audio de l’ordinateur est en cours avec d’autres programmes</translation>
    </message>
    <message>
        <source>the computer-audio device cannot choose programs; remove it and install it again</source>
        <translation>le périphérique d’audio de l’ordinateur ne peut pas choisir de programmes ; supprimez-le et réinstallez-le</translation>
    </message>
</context>
<context>
    <name>RecordingJoin</name>
    <message>
        <source>The recordings were not joined.</source>
        <translation>Les enregistrements n’ont pas été réunis.</translation>
    </message>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>Le fichier n’existe plus&#xa0;: %1</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Réunir</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>Ce chemin existe déjà, veuillez changer le chemin ou le nom.</translation>
    </message>
    <message numerus="yes">
        <source>Joining %n recordings…</source>
        <translation>
            <numerusform>Réunion de %n enregistrement…</numerusform>
            <numerusform>Réunion de %n enregistrements…</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was made. The recordings are not parts of one recording, so the sound was encoded again.</source>
        <translation>«&#xa0;%1&#xa0;» a été créé. Les enregistrements ne sont pas des parties d’un même enregistrement, le son a donc été réencodé.</translation>
    </message>
    <message>
        <source>“%1” was made. The sound was copied without encoding it again.</source>
        <translation>«&#xa0;%1&#xa0;» a été créé. Le son a été copié sans être réencodé.</translation>
    </message>
</context>
<context>
    <name>RecordingNotifier</name>
    <message>
        <source>“%1” was not kept: it is too short.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas été conservé&#xa0;: il est trop court.</translation>
    </message>
    <message>
        <source>Recording not kept</source>
        <translation>Enregistrement non conservé</translation>
    </message>
    <message>
        <source>About the recording</source>
        <translation>Au sujet de l’enregistrement</translation>
    </message>
    <message>
        <source>Recording cut; the next one runs</source>
        <translation>Enregistrement coupé&#xa0;; le suivant est en cours</translation>
    </message>
    <message>
        <source>Recording finished</source>
        <translation>Enregistrement terminé</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings finished</source>
        <translation>
            <numerusform>%n enregistrement terminé</numerusform>
            <numerusform>%n enregistrements terminés</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
</context>
<context>
    <name>RecordingRename</name>
    <message>
        <source>the title is empty</source>
        <translation>le titre est vide</translation>
    </message>
    <message>
        <source>a file name cannot contain “/”</source>
        <translation>un nom de fichier ne peut pas contenir «&#xa0;/&#xa0;»</translation>
    </message>
    <message>
        <source>the title has a character that no file name can contain</source>
        <translation>le titre contient un caractère qu’aucun nom de fichier ne peut contenir</translation>
    </message>
    <message>
        <source>the title is longer than a file name can be</source>
        <translation>le titre est plus long que ne peut l’être un nom de fichier</translation>
    </message>
    <message>
        <source>there is already a file named “%1” in its folder</source>
        <translation>il y a déjà un fichier nommé «&#xa0;%1&#xa0;» dans son dossier</translation>
    </message>
    <message>
        <source>The file keeps its name “%1”: %2.</source>
        <translation>Le fichier garde son nom «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>RingtoneMaker</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>impossible de lire %1</translation>
    </message>
    <message>
        <source>no folder for ringtones is known</source>
        <translation>aucun dossier de sonneries n’est connu</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossible d’écrire %1</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerBackgroundView</name>
    <message>
        <source>Ringtone</source>
        <translation>Sonnerie</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerViewController</name>
    <message>
        <source>Outline of the recording</source>
        <translation>Forme d’onde de l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lire</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>&amp;Aperçu</translation>
    </message>
    <message>
        <source>Play the selection again and again</source>
        <translation>Lire la sélection en boucle</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;De</translation>
    </message>
    <message>
        <source>Begin of the selection</source>
        <translation>Début de la sélection</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>&amp;Jusqu’à</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>Fin de la sélection</translation>
    </message>
    <message>
        <source>Length of the selection</source>
        <translation>Durée de la sélection</translation>
    </message>
    <message>
        <source>Fade &amp;in</source>
        <translation>Fondu en &amp;ouverture</translation>
    </message>
    <message>
        <source>Seconds of the fade-in</source>
        <translation>Secondes du fondu en ouverture</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Fade &amp;out</source>
        <translation>Fondu en &amp;fermeture</translation>
    </message>
    <message>
        <source>Seconds of the fade-out</source>
        <translation>Secondes du fondu en fermeture</translation>
    </message>
    <message>
        <source>The boxes are for listening. The ringtone fades over these times; under one second there is no fade.</source>
        <translation>Les cases servent à l’écoute. La sonnerie a des fondus de ces durées&#xa0;; en dessous d’une seconde, il n’y a pas de fondu.</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Open in the player when &amp;done</source>
        <translation>O&amp;uvrir dans le lecteur à la fin</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Make Ringtone</source>
        <translation>&amp;Créer la sonnerie</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Ringtone from “%1”</source>
        <translation>Sonnerie tirée de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>This recording cannot be read: %1</source>
        <translation>Impossible de lire cet enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondes</translation>
    </message>
    <message>
        <source>This recording cannot be read.</source>
        <translation>Impossible de lire cet enregistrement.</translation>
    </message>
    <message>
        <source>Select a part of the recording first.</source>
        <translation>Sélectionnez d’abord une partie de l’enregistrement.</translation>
    </message>
    <message>
        <source>This recording cannot be played.</source>
        <translation>Impossible d’écouter cet enregistrement.</translation>
    </message>
    <message>
        <source>This recording cannot be played: %1</source>
        <translation>Impossible d’écouter cet enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>The ringtone could not be made.</source>
        <translation>Impossible de créer la sonnerie.</translation>
    </message>
    <message>
        <source>The recording is damaged. The ringtone is silent where it could not be read.</source>
        <translation>L’enregistrement est endommagé. La sonnerie est muette aux endroits illisibles.</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>Impossible d’ouvrir un lecteur pour «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The ringtone is in the library.</source>
        <translation>La sonnerie est dans la bibliothèque.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>Rechercher dans les titres, artistes et albums</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>SplitEditView</name>
    <message>
        <source>Cut %1 of %2, %3</source>
        <translation>Coupe %1 sur %2, %3</translation>
    </message>
    <message>
        <source>Cuts of the recording</source>
        <translation>Coupes de l’enregistrement</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>Position de lecture</translation>
    </message>
    <message>
        <source>Current cut</source>
        <translation>Coupe actuelle</translation>
    </message>
</context>
<context>
    <name>SplitPartsModel</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
</context>
<context>
    <name>SplitWnd</name>
    <message>
        <source>Split at Silences</source>
        <translation>Diviser aux silences</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>Temps de lecture</translation>
    </message>
    <message>
        <source>Visible part of the recording</source>
        <translation>Partie visible de l’enregistrement</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>&amp;Listen to Cut</source>
        <translation>É&amp;couter la coupe</translation>
    </message>
    <message>
        <source>Play from two seconds before the cut to two seconds behind it</source>
        <translation>Lire de deux secondes avant la coupe à deux secondes après</translation>
    </message>
    <message>
        <source>&amp;Add Cut</source>
        <translation>&amp;Ajouter une coupe</translation>
    </message>
    <message>
        <source>Cut at the play position</source>
        <translation>Couper à la position de lecture</translation>
    </message>
    <message>
        <source>Re&amp;move Cut</source>
        <translation>&amp;Retirer la coupe</translation>
    </message>
    <message>
        <source>Take the current cut away</source>
        <translation>Retirer la coupe actuelle</translation>
    </message>
    <message>
        <source>Rese&amp;t Cuts</source>
        <translation>Ré&amp;initialiser</translation>
    </message>
    <message>
        <source>Take back the cuts that you added, moved and removed</source>
        <translation>Annuler vos ajouts, déplacements et retraits de coupes</translation>
    </message>
    <message>
        <source>L&amp;evel</source>
        <translation>&amp;Niveau</translation>
    </message>
    <message>
        <source>Level below which it is silent, in decibels</source>
        <translation>Niveau en dessous duquel il y a silence, en décibels</translation>
    </message>
    <message>
        <source>Value of Level</source>
        <translation>Valeur du niveau</translation>
    </message>
    <message>
        <source>Len&amp;gth</source>
        <translation>D&amp;urée</translation>
    </message>
    <message>
        <source>Length of the shortest silence, in tenths of a second</source>
        <translation>Durée du silence le plus court, en dixièmes de seconde</translation>
    </message>
    <message>
        <source>Value of Length</source>
        <translation>Valeur de la durée</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Parties</translation>
    </message>
    <message>
        <source>&amp;Delete the recording when its parts are written</source>
        <translation>&amp;Supprimer l’enregistrement une fois ses parties écrites</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Split</source>
        <translation>&amp;Diviser</translation>
    </message>
</context>
<context>
    <name>SplitWndController</name>
    <message>
        <source>%1 dB</source>
        <translation>%1&#xa0;dB</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>Searching for silences… %1 %</source>
        <translation>Recherche des silences… %1&#xa0;%</translation>
    </message>
    <message>
        <source>No silence found at this level. Choose a higher level, or add cuts yourself.</source>
        <translation>Aucun silence trouvé à ce niveau. Choisissez un niveau plus élevé ou ajoutez vous-même des coupes.</translation>
    </message>
    <message>
        <source>No silence is long enough. The longest silence found: %1 s.</source>
        <translation>Aucun silence n’est assez long. Plus long silence trouvé&#xa0;: %1&#xa0;s.</translation>
    </message>
    <message>
        <source>One cut. The longest silence found: %1 s.</source>
        <translation>Une coupe. Plus long silence trouvé&#xa0;: %1&#xa0;s.</translation>
    </message>
    <message numerus="yes">
        <source>%n cuts. The longest silence found: %1 s.</source>
        <translation>
            <numerusform>%n coupe. Plus long silence trouvé&#xa0;: %1&#xa0;s.</numerusform>
            <numerusform>%n coupes. Plus long silence trouvé&#xa0;: %1&#xa0;s.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Writing the parts…</source>
        <translation>Écriture des parties…</translation>
    </message>
    <message>
        <source>The recording was not split.</source>
        <translation>L’enregistrement n’a pas été divisé.</translation>
    </message>
</context>
<context>
    <name>SpokenField</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>StatusBarItem</name>
    <message>
        <source>Cut to Another Recording</source>
        <translation>Passer à un nouvel enregistrement</translation>
    </message>
    <message>
        <source>Show Sonaphex</source>
        <translation>Afficher Sonaphex</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Sonaphex: %1</source>
        <translation>Sonaphex&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
</context>
<context>
    <name>TrackListModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>Le fichier n’existe plus.</translation>
    </message>
    <message>
        <source>Only files with a tick are burned</source>
        <translation>Seuls les fichiers cochés sont gravés</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>Graver</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
</context>
<context>
    <name>WaitWnd</name>
    <message>
        <source>Please wait</source>
        <translation>Veuillez patienter</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
</TS>
