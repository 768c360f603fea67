<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
 <context>
  <name></name>
  <message id="cameraTitle">
   <source>Copying From the Camera</source>
   <translation type="unfinished">Von der Kamera kopieren</translation>
  </message>
  <message id="cameraLooking">
   <source>Looking for the camera...</source>
   <translation type="unfinished">Die Kamera wird gesucht ...</translation>
  </message>
  <message id="cameraNotAvailable">
   <source>Camera is not available. Please try again.</source>
   <translation type="unfinished">Die Kamera ist nicht verfügbar. Bitte versuchen Sie es noch einmal.</translation>
  </message>
  <message id="cameraNoPhoto">
   <source>There no photo in the camera.
Please check your camera.</source>
   <translation type="unfinished">In der Kamera ist kein Foto.
Bitte prüfen Sie die Kamera.</translation>
  </message>
  <message id="cameraCount">
   <source>Copying photo %1 of %2</source>
   <translation type="unfinished">Foto %1 von %2 wird kopiert</translation>
  </message>
  <message id="cameraDeleteAll">
   <source>All the photos in camera will be deleted.
Do you want to continue?</source>
   <translation type="unfinished">Alle Fotos in der Kamera werden gelöscht.
Möchten Sie fortfahren?</translation>
  </message>
  <message id="cameraProgress">
   <source>Photos copied</source>
   <translation type="unfinished">Kopierte Fotos</translation>
  </message>
  <message id="cameraStop">
   <source>&amp;Stop</source>
   <translation type="unfinished">&amp;Anhalten</translation>
  </message>
  <message id="cameraStopping">
   <source>Stopping...</source>
   <translation type="unfinished">Wird angehalten ...</translation>
  </message>
  <message id="cameraClose">
   <source>&amp;Close</source>
   <translation type="unfinished">&amp;Schließen</translation>
  </message>
  <message id="cameraStopped">
   <source>Stopped. The photos copied so far are in %1.</source>
   <translation type="unfinished">Angehalten. Die bisher kopierten Fotos liegen in %1.</translation>
  </message>
  <message id="cameraFailed">
   <source>A photo could not be copied: %1. The photos copied so far are in %2.</source>
   <translation type="unfinished">Ein Foto konnte nicht kopiert werden: %1. Die bisher kopierten Fotos liegen in %2.</translation>
  </message>
  <message id="cameraStoppedNothing">
   <source>Stopped. No photo was copied.</source>
   <translation type="unfinished">Angehalten. Es wurde kein Foto kopiert.</translation>
  </message>
  <message id="cameraFailedNothing">
   <source>No photo could be copied: %1.</source>
   <translation type="unfinished">Kein Foto konnte kopiert werden: %1.</translation>
  </message>
  <message id="cameraGone">
   <source>The camera is no longer there. The photos copied so far are in %1.</source>
   <translation type="unfinished">Die Kamera ist nicht mehr da. Die bisher kopierten Fotos sind in %1.</translation>
  </message>
  <message id="cameraGoneNothing">
   <source>The camera is no longer there. No photo was copied.</source>
   <translation type="unfinished">Die Kamera ist nicht mehr da. Es wurde kein Foto kopiert.</translation>
  </message>
  <message id="cameraFull">
   <source>The disk is full. The photos copied so far are in %1.</source>
   <translation type="unfinished">Der Datenträger ist voll. Die bisher kopierten Fotos sind in %1.</translation>
  </message>
  <message id="cameraFullNothing">
   <source>The disk is full. No photo was copied to %1.</source>
   <translation type="unfinished">Der Datenträger ist voll. Es wurde kein Foto nach %1 kopiert.</translation>
  </message>
  <message id="cameraNoFolder">
   <source>The folder %1 could not be made: %2.</source>
   <translation type="unfinished">Der Ordner %1 konnte nicht angelegt werden: %2.</translation>
  </message>
  <message id="cameraNoPlace">
   <source>There is no folder that could receive the photos.</source>
   <translation type="unfinished">Es gibt keinen Ordner, der die Fotos aufnehmen könnte.</translation>
  </message>
  <message id="cameraLeftOut" numerus="yes">
   <source>%1 files of the camera could not be read and were left out.</source>
   <translation type="unfinished">
    <numerusform>%1 Datei der Kamera war nicht lesbar und wurde ausgelassen.</numerusform>
    <numerusform>%1 Dateien der Kamera waren nicht lesbar und wurden ausgelassen.</numerusform>
   </translation>
  </message>
  <message id="cameraKept">
   <source>Some photos could not be deleted from the camera.</source>
   <translation type="unfinished">Einige Fotos konnten nicht von der Kamera gelöscht werden.</translation>
  </message>
  <message id="cameraCopied" numerus="yes">
   <source>%1 photos were copied.</source>
   <translation type="unfinished">
    <numerusform>%1 Foto wurde kopiert.</numerusform>
    <numerusform>%1 Fotos wurden kopiert.</numerusform>
   </translation>
  </message>
  <message id="captionStoring" numerus="yes">
   <source>Writing the captions of %1 photos</source>
   <translation type="unfinished">
    <numerusform>Die Bildunterschrift von %1 Foto wird geschrieben</numerusform>
    <numerusform>Die Bildunterschriften von %1 Fotos werden geschrieben</numerusform>
   </translation>
  </message>
  <message id="captionNotStored" numerus="yes">
   <source>The texts of %1 photos could not be stored.</source>
   <translation type="unfinished">
    <numerusform>Die Texte von %1 Foto konnten nicht gespeichert werden.</numerusform>
    <numerusform>Die Texte von %1 Fotos konnten nicht gespeichert werden.</numerusform>
   </translation>
  </message>
  <message id="captionPage">
   <source>Caption</source>
   <translation type="unfinished">Bildunterschrift</translation>
  </message>
  <message id="captionName">
   <source>File &amp;name:</source>
   <translation type="unfinished">Datei&amp;name:</translation>
  </message>
  <message id="captionText">
   <source>&amp;Caption:</source>
   <translation type="unfinished">&amp;Bildunterschrift:</translation>
  </message>
  <message id="captionTextTip">
   <source>Captions given before are in the list</source>
   <translation type="unfinished">Frühere Bildunterschriften stehen in der Liste</translation>
  </message>
  <message id="captionTimeStamp">
   <source>&amp;Time stamp:</source>
   <translation type="unfinished">&amp;Zeitstempel:</translation>
  </message>
  <message id="captionTimeStampTip">
   <source>Whether the photo carries a day</source>
   <translation type="unfinished">Ob das Foto einen Tag trägt</translation>
  </message>
  <message id="captionDay">
   <source>Day of the time stamp</source>
   <translation type="unfinished">Tag des Zeitstempels</translation>
  </message>
  <message id="captionSecond">
   <source>&amp;Second text:</source>
   <translation type="unfinished">Zwei&amp;ter Text:</translation>
  </message>
  <message id="captionOtherStamp">
   <source>The time stamp is %1, which is no day. It stays unless you choose one.</source>
   <translation type="unfinished">Der Zeitstempel ist %1, das ist kein Tag. Er bleibt, bis Sie einen wählen.</translation>
  </message>
  <message id="captionNone">
   <source>Only pictures and clips carry captions.</source>
   <translation type="unfinished">Nur Bilder und Videos tragen Bildunterschriften.</translation>
  </message>
  <message id="captionGives" numerus="yes">
   <source>The changes are for %1 files.</source>
   <translation type="unfinished">
    <numerusform>Die Änderungen gelten für %1 Datei.</numerusform>
    <numerusform>Die Änderungen gelten für %1 Dateien.</numerusform>
   </translation>
  </message>
  <message id="captionReplacesCaptions">
   <source>Replaces the captions of %1 of the %2 files.</source>
   <translation type="unfinished">Ersetzt die Bildunterschriften von %1 der %2 Dateien.</translation>
  </message>
  <message id="captionRemovesCaptions">
   <source>Removes the captions of %1 of the %2 files.</source>
   <translation type="unfinished">Entfernt die Bildunterschriften von %1 der %2 Dateien.</translation>
  </message>
  <message id="captionReplacesStamps">
   <source>Replaces the time stamps of %1 of the %2 files.</source>
   <translation type="unfinished">Ersetzt die Zeitstempel von %1 der %2 Dateien.</translation>
  </message>
  <message id="captionRemovesStamps">
   <source>Removes the time stamps of %1 of the %2 files.</source>
   <translation type="unfinished">Entfernt die Zeitstempel von %1 der %2 Dateien.</translation>
  </message>
  <message id="captionReplacesSeconds">
   <source>Replaces the second texts of %1 of the %2 files.</source>
   <translation type="unfinished">Ersetzt die zweiten Texte von %1 der %2 Dateien.</translation>
  </message>
  <message id="captionRemovesSeconds">
   <source>Removes the second texts of %1 of the %2 files.</source>
   <translation type="unfinished">Entfernt die zweiten Texte von %1 der %2 Dateien.</translation>
  </message>
  <message id="captionApply">
   <source>&amp;Apply</source>
   <translation type="unfinished">&amp;Anwenden</translation>
  </message>
  <message id="captionApplyTip">
   <source>Store the changes (Ctrl+Enter)</source>
   <translation type="unfinished">Die Änderungen speichern (Strg+Eingabe)</translation>
  </message>
  <message id="captionRevert">
   <source>&amp;Revert</source>
   <translation type="unfinished">Zu&amp;rücksetzen</translation>
  </message>
  <message id="captionRevertTip">
   <source>Show again what is stored</source>
   <translation type="unfinished">Wieder zeigen, was gespeichert ist</translation>
  </message>
  <message id="captionAskOne">
   <source>Store the changes to %1?</source>
   <translation type="unfinished">Die Änderungen an %1 speichern?</translation>
  </message>
  <message id="captionAskMany" numerus="yes">
   <source>Store the changes to %1 files?</source>
   <translation type="unfinished">
    <numerusform>Die Änderungen an %1 Datei speichern?</numerusform>
    <numerusform>Die Änderungen an %1 Dateien speichern?</numerusform>
   </translation>
  </message>
  <message id="captionStore">
   <source>&amp;Store</source>
   <translation type="unfinished">&amp;Speichern</translation>
  </message>
  <message id="captionDiscard">
   <source>&amp;Discard</source>
   <translation type="unfinished">&amp;Verwerfen</translation>
  </message>
  <message id="propertiesTitle">
   <source>Properties of %1</source>
   <translation type="unfinished">Eigenschaften von %1</translation>
  </message>
  <message id="propertiesPages">
   <source>Pages</source>
   <translation type="unfinished">Seiten</translation>
  </message>
  <message id="propertiesGeneral">
   <source>General</source>
   <translation type="unfinished">Allgemein</translation>
  </message>
  <message id="propertiesName">
   <source>Name:</source>
   <translation type="unfinished">Name:</translation>
  </message>
  <message id="propertiesFolder">
   <source>Folder:</source>
   <translation type="unfinished">Ordner:</translation>
  </message>
  <message id="propertiesKind">
   <source>Kind:</source>
   <translation type="unfinished">Art:</translation>
  </message>
  <message id="propertiesPixels">
   <source>Picture size:</source>
   <translation type="unfinished">Bildgröße:</translation>
  </message>
  <message id="propertiesSize">
   <source>Size:</source>
   <translation type="unfinished">Größe:</translation>
  </message>
  <message id="propertiesContents">
   <source>Contents:</source>
   <translation type="unfinished">Inhalt:</translation>
  </message>
  <message id="propertiesCreated">
   <source>Created:</source>
   <translation type="unfinished">Erstellt:</translation>
  </message>
  <message id="propertiesChanged">
   <source>Changed:</source>
   <translation type="unfinished">Geändert:</translation>
  </message>
  <message id="propertiesWidthAndHeight">
   <source>%1 × %2 pixels</source>
   <translation type="unfinished">%1 × %2 Pixel</translation>
  </message>
  <message id="propertiesSizeAndBytes">
   <source>%1 (%2)</source>
   <translation type="unfinished">%1 (%2)</translation>
  </message>
  <message id="propertiesBytes" numerus="yes">
   <source>%1 bytes</source>
   <translation type="unfinished">
    <numerusform>%1 Byte</numerusform>
    <numerusform>%1 Bytes</numerusform>
   </translation>
  </message>
  <message id="propertiesSelected" numerus="yes">
   <source>%1 selected items</source>
   <translation type="unfinished">
    <numerusform>%1 ausgewähltes Element</numerusform>
    <numerusform>%1 ausgewählte Elemente</numerusform>
   </translation>
  </message>
  <message id="propertiesSeveralFolders">
   <source>Several folders</source>
   <translation type="unfinished">Mehrere Ordner</translation>
  </message>
  <message id="propertiesCounting">
   <source>Still counting...</source>
   <translation type="unfinished">Wird noch gezählt …</translation>
  </message>
  <message id="propertiesUnreadable" numerus="yes">
   <source>%1 could not be read</source>
   <translation type="unfinished">
    <numerusform>%1 konnte nicht gelesen werden</numerusform>
    <numerusform>%1 konnten nicht gelesen werden</numerusform>
   </translation>
  </message>
  <message id="propertiesFromTo">
   <source>%1 to %2</source>
   <translation type="unfinished">%1 bis %2</translation>
  </message>
  <message id="propertiesGone">
   <source>It is no longer there</source>
   <translation type="unfinished">Das gibt es nicht mehr</translation>
  </message>
  <message id="optionsTitle">
   <source>Options</source>
   <translation type="unfinished">Optionen</translation>
  </message>
  <message id="optionsLeftPhotos">
   <source>Photos on the camera, once they are copied</source>
   <translation type="unfinished">Fotos auf der Kamera, nachdem sie kopiert sind</translation>
  </message>
  <message id="optionsAsk">
   <source>&amp;Ask what to do</source>
   <translation type="unfinished">&amp;Fragen, was geschehen soll</translation>
  </message>
  <message id="optionsKeep">
   <source>&amp;Keep them on the camera</source>
   <translation type="unfinished">Auf der Kamera &amp;behalten</translation>
  </message>
  <message id="optionsDelete">
   <source>&amp;Delete them from the camera</source>
   <translation type="unfinished">Von der Kamera &amp;löschen</translation>
  </message>
  <message id="optionsPort">
   <source>Port of the handset</source>
   <translation type="unfinished">Anschluss des Handys</translation>
  </message>
  <message id="optionsSearch">
   <source>Search by number or name</source>
   <translation type="unfinished">Nach Nummer oder Name suchen</translation>
  </message>
  <message id="optionsOnlyPresent">
   <source>&amp;Only ports with something behind them</source>
   <translation type="unfinished">&amp;Nur Anschlüsse, hinter denen etwas steht</translation>
  </message>
  <message id="optionsPortWith">
   <source>%1: %2</source>
   <translation type="unfinished">%1: %2</translation>
  </message>
  <message id="optionsPortAway">
   <source>%1: %2 (not connected)</source>
   <translation type="unfinished">%1: %2 (nicht angeschlossen)</translation>
  </message>
  <message id="optionsNamed">
   <source>%1, %2</source>
   <translation type="unfinished">%1, %2</translation>
  </message>
  <message id="optionsNoPort">
   <source>No port is chosen. Connect the handset's cable or adapter, open this window again and choose it here.</source>
   <translation type="unfinished">Kein Anschluss ist gewählt. Schließen Sie Kabel oder Adapter des Handys an, öffnen Sie dieses Fenster erneut und wählen Sie ihn hier.</translation>
  </message>
  <message id="optionsPortReady">
   <source>The handset is looked for at this port.</source>
   <translation type="unfinished">Das Handy wird an diesem Anschluss gesucht.</translation>
  </message>
  <message id="optionsPortMissing">
   <source>Nothing is connected at this port now.</source>
   <translation type="unfinished">An diesem Anschluss ist gerade nichts angeschlossen.</translation>
  </message>
  <message id="optionsPortNew">
   <source>This adapter keeps the number from now on, whatever else is plugged in.</source>
   <translation type="unfinished">Dieser Adapter behält die Nummer von nun an, was immer sonst angeschlossen ist.</translation>
  </message>
  <message id="optionsNotSaved">
   <source>The options could not be saved. Your settings folder may be full or protected against changes.</source>
   <translation type="unfinished">Die Optionen konnten nicht gespeichert werden. Vielleicht ist der Ordner Ihrer Einstellungen voll oder schreibgeschützt.</translation>
  </message>
  <message id="sourceTitle">
   <source>Select Source</source>
   <translation type="unfinished">Quelle wählen</translation>
  </message>
  <message id="sourceLooking">
   <source>Looking for scanners and cameras...</source>
   <translation type="unfinished">Scanner und Kameras werden gesucht …</translation>
  </message>
  <message id="sourceChoose">
   <source>Pictures are acquired from:</source>
   <translation type="unfinished">Bilder werden übernommen von:</translation>
  </message>
  <message id="sourceNone">
   <source>No scanner or camera was found. Switch it on, connect it, and open this window again.</source>
   <translation type="unfinished">Kein Scanner und keine Kamera wurde gefunden. Schalten Sie das Gerät ein, schließen Sie es an und öffnen Sie dieses Fenster erneut.</translation>
  </message>
  <message id="sourceCannotOpen">
   <source>An error occurred while trying to open TWAIN Data Source.</source>
   <translation type="unfinished">Beim Öffnen der TWAIN-Datenquelle ist ein Fehler aufgetreten.</translation>
  </message>
  <message id="sourceCannotOpenWhy">
   <source>Scanners are reached through SANE, which is not installed or does not start.</source>
   <translation type="unfinished">Scanner werden über SANE erreicht, das nicht installiert ist oder nicht startet.</translation>
  </message>
  <message id="commandRename">
   <source>Rename...</source>
   <translation type="unfinished">Umbenennen...</translation>
  </message>
  <message id="commandNewFolder">
   <source>New Folder...</source>
   <translation type="unfinished">Neuer Ordner …</translation>
  </message>
  <message id="filesOpen">
   <source>&amp;Open</source>
   <translation type="unfinished">&amp;Öffnen</translation>
  </message>
  <message id="filesOpenWith">
   <source>Open &amp;With</source>
   <translation type="unfinished">Öffnen &amp;mit</translation>
  </message>
  <message id="filesOpenWithNone">
   <source>No program is known for this kind of file</source>
   <translation type="unfinished">Für diese Art von Datei ist kein Programm bekannt</translation>
  </message>
  <message id="filesDeleteForGood">
   <source>Delete for &amp;Good</source>
   <translation type="unfinished">End&amp;gültig löschen</translation>
  </message>
  <message id="filesUndo">
   <source>Undo</source>
   <translation type="unfinished">Rückgängig</translation>
  </message>
  <message id="filesUndoCopyName">
   <source>Undo Copy of “%1”</source>
   <translation type="unfinished">Kopieren von „%1“ rückgängig</translation>
  </message>
  <message id="filesUndoMoveName">
   <source>Undo Move of “%1”</source>
   <translation type="unfinished">Verschieben von „%1“ rückgängig</translation>
  </message>
  <message id="filesUndoDeleteName">
   <source>Undo Delete of “%1”</source>
   <translation type="unfinished">Löschen von „%1“ rückgängig</translation>
  </message>
  <message id="filesUndoRenameName">
   <source>Undo Rename of “%1”</source>
   <translation type="unfinished">Umbenennen von „%1“ rückgängig</translation>
  </message>
  <message id="filesUndoFolderName">
   <source>Undo New Folder “%1”</source>
   <translation type="unfinished">Neuen Ordner „%1“ rückgängig</translation>
  </message>
  <message id="filesUndoPasteName">
   <source>Undo Paste of “%1”</source>
   <translation type="unfinished">Einfügen von „%1“ rückgängig</translation>
  </message>
  <message id="filesUndoCopy" numerus="yes">
   <source>Undo Copy of %1 Items</source>
   <translation type="unfinished">
    <numerusform>Kopieren von %1 Element rückgängig</numerusform>
    <numerusform>Kopieren von %1 Elementen rückgängig</numerusform>
   </translation>
  </message>
  <message id="filesUndoMove" numerus="yes">
   <source>Undo Move of %1 Items</source>
   <translation type="unfinished">
    <numerusform>Verschieben von %1 Element rückgängig</numerusform>
    <numerusform>Verschieben von %1 Elementen rückgängig</numerusform>
   </translation>
  </message>
  <message id="filesUndoRename" numerus="yes">
   <source>Undo Rename of %1 Items</source>
   <translation type="unfinished">
    <numerusform>Umbenennen von %1 Element rückgängig</numerusform>
    <numerusform>Umbenennen von %1 Elementen rückgängig</numerusform>
   </translation>
  </message>
  <message id="filesUndoDelete" numerus="yes">
   <source>Undo Delete of %1 Items</source>
   <translation type="unfinished">
    <numerusform>Löschen von %1 Element rückgängig</numerusform>
    <numerusform>Löschen von %1 Elementen rückgängig</numerusform>
   </translation>
  </message>
  <message id="filesCopying" numerus="yes">
   <source>Copying %1 items</source>
   <translation type="unfinished">
    <numerusform>%1 Element wird kopiert</numerusform>
    <numerusform>%1 Elemente werden kopiert</numerusform>
   </translation>
  </message>
  <message id="filesMoving" numerus="yes">
   <source>Moving %1 items</source>
   <translation type="unfinished">
    <numerusform>%1 Element wird verschoben</numerusform>
    <numerusform>%1 Elemente werden verschoben</numerusform>
   </translation>
  </message>
  <message id="filesTrashing" numerus="yes">
   <source>Moving %1 items to the trash</source>
   <translation type="unfinished">
    <numerusform>%1 Element kommt in den Papierkorb</numerusform>
    <numerusform>%1 Elemente kommen in den Papierkorb</numerusform>
   </translation>
  </message>
  <message id="filesRemoving" numerus="yes">
   <source>Deleting %1 items</source>
   <translation type="unfinished">
    <numerusform>%1 Element wird gelöscht</numerusform>
    <numerusform>%1 Elemente werden gelöscht</numerusform>
   </translation>
  </message>
  <message id="filesRenaming">
   <source>Renaming</source>
   <translation type="unfinished">Wird umbenannt</translation>
  </message>
  <message id="filesMakingFolder">
   <source>Making a folder</source>
   <translation type="unfinished">Ordner wird angelegt</translation>
  </message>
  <message id="filesMakingFile">
   <source>Saving a picture</source>
   <translation type="unfinished">Bild wird gespeichert</translation>
  </message>
  <message id="filesRenamingAll" numerus="yes">
   <source>Renaming %1 files</source>
   <translation type="unfinished">
    <numerusform>%1 Datei wird umbenannt</numerusform>
    <numerusform>%1 Dateien werden umbenannt</numerusform>
   </translation>
  </message>
  <message id="filesUndoing" numerus="yes">
   <source>Taking back %1 changes</source>
   <translation type="unfinished">
    <numerusform>%1 Änderung wird rückgängig gemacht</numerusform>
    <numerusform>%1 Änderungen werden rückgängig gemacht</numerusform>
   </translation>
  </message>
  <message id="filesWaiting" numerus="yes">
   <source>%1 more jobs are waiting</source>
   <translation type="unfinished">
    <numerusform>%1 weiterer Auftrag wartet</numerusform>
    <numerusform>%1 weitere Aufträge warten</numerusform>
   </translation>
  </message>
  <message id="filesProgress">
   <source>Progress</source>
   <translation type="unfinished">Fortschritt</translation>
  </message>
  <message id="filesCancel">
   <source>Cancel</source>
   <translation type="unfinished">Abbrechen</translation>
  </message>
  <message id="filesCancelling">
   <source>Stopping...</source>
   <translation type="unfinished">Wird angehalten …</translation>
  </message>
  <message id="filesClashTitle">
   <source>Name Taken</source>
   <translation type="unfinished">Name vergeben</translation>
  </message>
  <message id="filesClashFile">
   <source>“%1” is already in “%2”.</source>
   <translation type="unfinished">„%1“ ist schon in „%2“.</translation>
  </message>
  <message id="filesClashFolder">
   <source>A folder “%1” is already in “%2”.</source>
   <translation type="unfinished">Ein Ordner „%1“ ist schon in „%2“.</translation>
  </message>
  <message id="filesClashThere">
   <source>There: %1</source>
   <translation type="unfinished">Vorhanden: %1</translation>
  </message>
  <message id="filesClashComing">
   <source>Coming: %1</source>
   <translation type="unfinished">Neu: %1</translation>
  </message>
  <message id="filesClashFacts">
   <source>%1, %2</source>
   <translation type="unfinished">%1, %2</translation>
  </message>
  <message id="filesClashForAll">
   <source>Do the &amp;same for all others</source>
   <translation type="unfinished">Für alle anderen &amp;ebenso</translation>
  </message>
  <message id="filesClashSkip">
   <source>&amp;Skip</source>
   <translation type="unfinished">Au&amp;slassen</translation>
  </message>
  <message id="filesClashReplace">
   <source>&amp;Replace</source>
   <translation type="unfinished">E&amp;rsetzen</translation>
  </message>
  <message id="filesClashReplaceTip">
   <source>The one that is there goes to the trash</source>
   <translation type="unfinished">Was da ist, kommt in den Papierkorb</translation>
  </message>
  <message id="filesClashKeepBoth">
   <source>&amp;Keep Both</source>
   <translation type="unfinished">&amp;Beide behalten</translation>
  </message>
  <message id="filesClashKeepBothTip">
   <source>The one that comes gets a number</source>
   <translation type="unfinished">Was neu ist, bekommt eine Nummer</translation>
  </message>
  <message id="filesClashMerge">
   <source>&amp;Merge</source>
   <translation type="unfinished">&amp;Zusammenführen</translation>
  </message>
  <message id="filesClashMergeTip">
   <source>What both folders hold is put together; nothing is replaced without asking</source>
   <translation type="unfinished">Der Inhalt beider Ordner wird vereint; nichts wird ohne Frage ersetzt</translation>
  </message>
  <message id="filesAskTitle">
   <source>Delete for Good</source>
   <translation type="unfinished">Endgültig löschen</translation>
  </message>
  <message id="filesAskRemoveName">
   <source>Delete “%1” for good?</source>
   <translation type="unfinished">„%1“ endgültig löschen?</translation>
  </message>
  <message id="filesAskRemove" numerus="yes">
   <source>Delete %1 items for good?</source>
   <translation type="unfinished">
    <numerusform>%1 Element endgültig löschen?</numerusform>
    <numerusform>%1 Elemente endgültig löschen?</numerusform>
   </translation>
  </message>
  <message id="filesAskRemoveMore">
   <source>This cannot be undone.</source>
   <translation type="unfinished">Das lässt sich nicht rückgängig machen.</translation>
  </message>
  <message id="filesAskNoTrash" numerus="yes">
   <source>%1 items cannot be put into the trash, for there is none on that medium. Delete them for good?</source>
   <translation type="unfinished">
    <numerusform>%1 Element kann nicht in den Papierkorb, denn auf diesem Datenträger gibt es keinen. Endgültig löschen?</numerusform>
    <numerusform>%1 Elemente können nicht in den Papierkorb, denn auf diesem Datenträger gibt es keinen. Endgültig löschen?</numerusform>
   </translation>
  </message>
  <message id="filesAskRemoveButton">
   <source>Delete</source>
   <translation type="unfinished">Löschen</translation>
  </message>
  <message id="filesAskFolderTitle">
   <source>New Folder</source>
   <translation type="unfinished">Neuer Ordner</translation>
  </message>
  <message id="filesAskFolderName">
   <source>Name of the new folder in “%1”:</source>
   <translation type="unfinished">Name des neuen Ordners in „%1“:</translation>
  </message>
  <message id="filesNewFolderName">
   <source>New Folder</source>
   <translation type="unfinished">Neuer Ordner</translation>
  </message>
  <message id="filesCreate">
   <source>Create</source>
   <translation type="unfinished">Anlegen</translation>
  </message>
  <message id="filesNameLabel">
   <source>New name</source>
   <translation type="unfinished">Neuer Name</translation>
  </message>
  <message id="filesNameEmpty">
   <source>A name is needed</source>
   <translation type="unfinished">Ein Name ist nötig</translation>
  </message>
  <message id="filesNameForbidden">
   <source>A name may not hold any of / \ : * ? " &lt; &gt; |</source>
   <translation type="unfinished">Ein Name darf keines der Zeichen / \ : * ? " &lt; &gt; | enthalten</translation>
  </message>
  <message id="filesNameReserved">
   <source>This name has a meaning of its own</source>
   <translation type="unfinished">Dieser Name hat eine eigene Bedeutung</translation>
  </message>
  <message id="filesNameTooLong">
   <source>This name is too long</source>
   <translation type="unfinished">Dieser Name ist zu lang</translation>
  </message>
  <message id="filesNameTaken">
   <source>“%1” is already there</source>
   <translation type="unfinished">„%1“ gibt es schon</translation>
  </message>
  <message id="filesReportTitle">
   <source>Not Everything Was Done</source>
   <translation type="unfinished">Nicht alles ist geschehen</translation>
  </message>
  <message id="filesNotCopied" numerus="yes">
   <source>%1 items could not be copied.</source>
   <translation type="unfinished">
    <numerusform>%1 Element konnte nicht kopiert werden.</numerusform>
    <numerusform>%1 Elemente konnten nicht kopiert werden.</numerusform>
   </translation>
  </message>
  <message id="filesNotMoved" numerus="yes">
   <source>%1 items could not be moved.</source>
   <translation type="unfinished">
    <numerusform>%1 Element konnte nicht verschoben werden.</numerusform>
    <numerusform>%1 Elemente konnten nicht verschoben werden.</numerusform>
   </translation>
  </message>
  <message id="filesNotTrashed" numerus="yes">
   <source>%1 items could not be moved to the trash.</source>
   <translation type="unfinished">
    <numerusform>%1 Element konnte nicht in den Papierkorb.</numerusform>
    <numerusform>%1 Elemente konnten nicht in den Papierkorb.</numerusform>
   </translation>
  </message>
  <message id="filesNotRemoved" numerus="yes">
   <source>%1 items could not be deleted.</source>
   <translation type="unfinished">
    <numerusform>%1 Element konnte nicht gelöscht werden.</numerusform>
    <numerusform>%1 Elemente konnten nicht gelöscht werden.</numerusform>
   </translation>
  </message>
  <message id="filesNotRenamed">
   <source>The new name could not be given.</source>
   <translation type="unfinished">Der neue Name konnte nicht vergeben werden.</translation>
  </message>
  <message id="filesNotAllRenamed" numerus="yes">
   <source>%1 files could not be renamed.</source>
   <translation type="unfinished">
    <numerusform>%1 Datei konnte nicht umbenannt werden.</numerusform>
    <numerusform>%1 Dateien konnten nicht umbenannt werden.</numerusform>
   </translation>
  </message>
  <message id="filesNoFolderMade">
   <source>The folder could not be made.</source>
   <translation type="unfinished">Der Ordner konnte nicht angelegt werden.</translation>
  </message>
  <message id="filesNoFileMade">
   <source>The picture could not be saved.</source>
   <translation type="unfinished">Das Bild konnte nicht gespeichert werden.</translation>
  </message>
  <message id="filesNotUndone" numerus="yes">
   <source>%1 changes could not be taken back.</source>
   <translation type="unfinished">
    <numerusform>%1 Änderung konnte nicht rückgängig gemacht werden.</numerusform>
    <numerusform>%1 Änderungen konnten nicht rückgängig gemacht werden.</numerusform>
   </translation>
  </message>
  <message id="filesWereDone">
   <source>Done: %1 of %2.</source>
   <translation type="unfinished">Erledigt: %1 von %2.</translation>
  </message>
  <message id="filesWereSkipped">
   <source>Left out as you chose: %1.</source>
   <translation type="unfinished">Wie gewählt ausgelassen: %1.</translation>
  </message>
  <message id="filesWasCancelled">
   <source>You stopped it.</source>
   <translation type="unfinished">Sie haben es angehalten.</translation>
  </message>
  <message id="filesProblemLine">
   <source>%1: %2</source>
   <translation type="unfinished">%1: %2</translation>
  </message>
  <message id="filesMoreProblems" numerus="yes">
   <source>and %1 more</source>
   <translation type="unfinished">
    <numerusform>und %1 weiteres</numerusform>
    <numerusform>und %1 weitere</numerusform>
   </translation>
  </message>
  <message id="filesBecauseMissing">
   <source>it is no longer there</source>
   <translation type="unfinished">das gibt es nicht mehr</translation>
  </message>
  <message id="filesBecauseTaken">
   <source>its name is taken</source>
   <translation type="unfinished">der Name ist vergeben</translation>
  </message>
  <message id="filesBecauseItself">
   <source>it is there already</source>
   <translation type="unfinished">das ist schon dort</translation>
  </message>
  <message id="filesBecauseIntoItself">
   <source>a folder can neither go into itself nor take the place of a folder that holds it</source>
   <translation type="unfinished">ein Ordner kann weder in sich selbst noch an die Stelle eines Ordners, der ihn enthält</translation>
  </message>
  <message id="filesBecauseForbidden">
   <source>you have no permission for this</source>
   <translation type="unfinished">das dürfen Sie hier nicht</translation>
  </message>
  <message id="filesBecauseNoRoom">
   <source>there is not enough room</source>
   <translation type="unfinished">der Platz reicht nicht</translation>
  </message>
  <message id="filesBecauseBadName">
   <source>this medium takes no such name</source>
   <translation type="unfinished">dieser Datenträger nimmt einen solchen Namen nicht</translation>
  </message>
  <message id="filesBecauseNoTrash">
   <source>there is no trash on this medium</source>
   <translation type="unfinished">auf diesem Datenträger gibt es keinen Papierkorb</translation>
  </message>
  <message id="filesBecauseChanged">
   <source>it has changed since</source>
   <translation type="unfinished">das hat sich seitdem geändert</translation>
  </message>
  <message id="filesDropCopy">
   <source>Copy to “%1”</source>
   <translation type="unfinished">Nach „%1“ kopieren</translation>
  </message>
  <message id="filesDropMove">
   <source>Move to “%1”</source>
   <translation type="unfinished">Nach „%1“ verschieben</translation>
  </message>
  <message id="menuFile">
   <source>File</source>
   <translation type="unfinished">Datei</translation>
  </message>
  <message id="menuEdit">
   <source>Edit</source>
   <translation type="unfinished">Bearbeiten</translation>
  </message>
  <message id="menuView">
   <source>View</source>
   <translation type="unfinished">Ansicht</translation>
  </message>
  <message id="menuThumbnailSize">
   <source>Thumbnail Size</source>
   <translation type="unfinished">Größe der Vorschaubilder</translation>
  </message>
  <message id="menuFilter">
   <source>Filter</source>
   <translation type="unfinished">Filter</translation>
  </message>
  <message id="menuSort">
   <source>Sort</source>
   <translation type="unfinished">Sortieren</translation>
  </message>
  <message id="menuTools">
   <source>Tools</source>
   <translation type="unfinished">Extras</translation>
  </message>
  <message id="menuMobile">
   <source>Mobile</source>
   <translation type="unfinished">Handy</translation>
  </message>
  <message id="menuHelp">
   <source>Help</source>
   <translation type="unfinished">Hilfe</translation>
  </message>
  <message id="commandAcquire">
   <source>Acquire...</source>
   <translation type="unfinished">Bild übernehmen …</translation>
  </message>
  <message id="commandSelectSource">
   <source>Select Source...</source>
   <translation type="unfinished">Quelle wählen …</translation>
  </message>
  <message id="commandCameraDownload">
   <source>Camera Download...</source>
   <translation type="unfinished">Von der Kamera kopieren …</translation>
  </message>
  <message id="commandPrint">
   <source>Print...</source>
   <translation type="unfinished">Drucken …</translation>
  </message>
  <message id="commandEMail">
   <source>E-mail...</source>
   <translation type="unfinished">E-Mail …</translation>
  </message>
  <message id="commandProperties">
   <source>Properties...</source>
   <translation type="unfinished">Eigenschaften …</translation>
  </message>
  <message id="commandBackToTaskPanel">
   <source>Back to Task Panel</source>
   <translation type="unfinished">Zurück zur Aufgabenleiste</translation>
  </message>
  <message id="commandExit">
   <source>Exit</source>
   <translation type="unfinished">Beenden</translation>
  </message>
  <message id="commandCopy">
   <source>Copy</source>
   <translation type="unfinished">Kopieren</translation>
  </message>
  <message id="commandCut">
   <source>Cut</source>
   <translation type="unfinished">Ausschneiden</translation>
  </message>
  <message id="commandPaste">
   <source>Paste</source>
   <translation type="unfinished">Einfügen</translation>
  </message>
  <message id="commandDelete">
   <source>Delete</source>
   <translation type="unfinished">Löschen</translation>
  </message>
  <message id="commandSelectAll">
   <source>Select All</source>
   <translation type="unfinished">Alles auswählen</translation>
  </message>
  <message id="commandSelectNone">
   <source>Select None</source>
   <translation type="unfinished">Nichts auswählen</translation>
  </message>
  <message id="commandInvertSelection">
   <source>Invert Selection</source>
   <translation type="unfinished">Auswahl umkehren</translation>
  </message>
  <message id="commandSearch">
   <source>Search...</source>
   <translation type="unfinished">Suchen …</translation>
  </message>
  <message id="commandThumbnails">
   <source>Thumbnails</source>
   <translation type="unfinished">Vorschaubilder</translation>
  </message>
  <message id="commandSmallIcons">
   <source>Small Icons</source>
   <translation type="unfinished">Kleine Symbole</translation>
  </message>
  <message id="commandList">
   <source>List</source>
   <translation type="unfinished">Liste</translation>
  </message>
  <message id="commandDetails">
   <source>Details</source>
   <translation type="unfinished">Einzelheiten</translation>
  </message>
  <message id="commandLarge">
   <source>Large</source>
   <translation type="unfinished">Groß</translation>
  </message>
  <message id="commandMedium">
   <source>Medium</source>
   <translation type="unfinished">Mittel</translation>
  </message>
  <message id="commandSmall">
   <source>Small</source>
   <translation type="unfinished">Klein</translation>
  </message>
  <message id="commandPhoto">
   <source>Photo</source>
   <translation type="unfinished">Fotos</translation>
  </message>
  <message id="commandVideo">
   <source>Video</source>
   <translation type="unfinished">Videos</translation>
  </message>
  <message id="commandMedia">
   <source>Media</source>
   <translation type="unfinished">Medien</translation>
  </message>
  <message id="commandAllFiles">
   <source>All Files</source>
   <translation type="unfinished">Alle Dateien</translation>
  </message>
  <message id="commandIncludeFolder">
   <source>Include Folder</source>
   <translation type="unfinished">Auch Ordner</translation>
  </message>
  <message id="commandByName">
   <source>By Name</source>
   <translation type="unfinished">Nach Name</translation>
  </message>
  <message id="commandBySize">
   <source>By Size</source>
   <translation type="unfinished">Nach Größe</translation>
  </message>
  <message id="commandByType">
   <source>By Type</source>
   <translation type="unfinished">Nach Typ</translation>
  </message>
  <message id="commandByModified">
   <source>By Modified</source>
   <translation type="unfinished">Nach Änderung</translation>
  </message>
  <message id="commandByDateTaken">
   <source>By Date Taken</source>
   <translation type="unfinished">Nach Aufnahmedatum</translation>
  </message>
  <message id="commandAscending">
   <source>Ascending</source>
   <translation type="unfinished">Aufsteigend</translation>
  </message>
  <message id="commandDescending">
   <source>Descending</source>
   <translation type="unfinished">Absteigend</translation>
  </message>
  <message id="commandDateTakenColumn">
   <source>Date Taken Column</source>
   <translation type="unfinished">Spalte „Aufnahmedatum“</translation>
  </message>
  <message id="commandToolBar">
   <source>Tool Bar</source>
   <translation type="unfinished">Werkzeugleiste</translation>
  </message>
  <message id="commandTaskPanel">
   <source>Task Panel</source>
   <translation type="unfinished">Aufgabenleiste</translation>
  </message>
  <message id="commandPhotoInfo">
   <source>Photo Information</source>
   <translation type="unfinished">Fotoinformationen</translation>
  </message>
  <message id="commandRefresh">
   <source>Refresh</source>
   <translation type="unfinished">Aktualisieren</translation>
  </message>
  <message id="commandImageSize">
   <source>Image Size</source>
   <translation type="unfinished">Bildgröße</translation>
  </message>
  <message id="commandPhotoTrim">
   <source>Photo Trim</source>
   <translation type="unfinished">Foto zuschneiden</translation>
  </message>
  <message id="commandWhiteboardCleanUp">
   <source>Whiteboard Clean-up</source>
   <translation type="unfinished">Tafelbild säubern</translation>
  </message>
  <message id="commandVideoTrim">
   <source>Video Trim</source>
   <translation type="unfinished">Video schneiden</translation>
  </message>
  <message id="commandSlideShow">
   <source>Slide Show</source>
   <translation type="unfinished">Diaschau</translation>
  </message>
  <message id="commandScreenSaver">
   <source>Screen Saver</source>
   <translation type="unfinished">Bildschirmschoner</translation>
  </message>
  <message id="commandScreenCapture">
   <source>Screen Capture</source>
   <translation type="unfinished">Bildschirm aufnehmen</translation>
  </message>
  <message id="commandChangeTimeStamp">
   <source>Change Time Stamp</source>
   <translation type="unfinished">Zeitstempel ändern</translation>
  </message>
  <message id="commandUploadToPc">
   <source>Upload to PC</source>
   <translation type="unfinished">Auf den PC übertragen</translation>
  </message>
  <message id="commandDownloadToMobile">
   <source>Download to Mobile</source>
   <translation type="unfinished">Auf das Handy übertragen</translation>
  </message>
  <message id="commandMessageCenter">
   <source>Message Center</source>
   <translation type="unfinished">Nachrichten</translation>
  </message>
  <message id="commandPim">
   <source>PIM</source>
   <translation type="unfinished">PIM</translation>
  </message>
  <message id="commandMms">
   <source>MMS</source>
   <translation type="unfinished">MMS</translation>
  </message>
  <message id="commandSms">
   <source>SMS</source>
   <translation type="unfinished">SMS</translation>
  </message>
  <message id="commandOptions">
   <source>Options...</source>
   <translation type="unfinished">Optionen …</translation>
  </message>
  <message id="commandHelp">
   <source>Help</source>
   <translation type="unfinished">Hilfe</translation>
  </message>
  <message id="commandAbout">
   <source>About</source>
   <translation type="unfinished">Über</translation>
  </message>
  <message id="framePlugAndPlay">
   <source>A plug &amp; play device id found!</source>
   <translation type="unfinished">Eine Plug-&amp;-Play-Gerätekennung wurde gefunden!</translation>
  </message>
  <message id="missingMail">
   <source>Sending mail is not part of this version yet</source>
   <translation type="unfinished">E-Mail gehört noch nicht zu dieser Version</translation>
  </message>
  <message id="missingEditors">
   <source>The image editors are not part of this version yet</source>
   <translation type="unfinished">Die Bildbearbeitung gehört noch nicht zu dieser Version</translation>
  </message>
  <message id="missingHandset">
   <source>Messages of the handset are not part of this version yet</source>
   <translation type="unfinished">Nachrichten des Handys gehören noch nicht zu dieser Version</translation>
  </message>
  <message id="missingScanner">
   <source>Taking pictures from a scanner is not part of this version yet</source>
   <translation type="unfinished">Bilder von einem Scanner zu übernehmen gehört noch nicht zu dieser Version</translation>
  </message>
  <message id="aboutTitle">
   <source>About</source>
   <translation type="unfinished">Über</translation>
  </message>
  <message id="aboutWhat">
   <source>A manager for photos and other media.</source>
   <translation type="unfinished">Verwaltet Fotos und andere Medien.</translation>
  </message>
  <message id="suiteLaunchMms">
   <source>Launch MMS</source>
   <translation type="unfinished">MMS starten</translation>
  </message>
  <message id="suiteLaunchSms">
   <source>Launch SMS</source>
   <translation type="unfinished">SMS starten</translation>
  </message>
  <message id="suitePimError">
   <source>Launch PIM Error</source>
   <translation type="unfinished">Launch PIM Error</translation>
  </message>
  <message id="suitePimWhy">
   <source>Contacts and calendar are kept by a part of the suite that is not installed.</source>
   <translation type="unfinished">Kontakte und Kalender verwaltet ein Teil der Suite, der nicht installiert ist.</translation>
  </message>
  <message id="suiteNoLauncher">
   <source>The suite's task panel is not installed.</source>
   <translation type="unfinished">Die Aufgabenleiste der Suite ist nicht installiert.</translation>
  </message>
  <message id="suiteNoPictures">
   <source>Select the pictures to print first.</source>
   <translation type="unfinished">Wählen Sie zuerst die Bilder aus, die gedruckt werden sollen.</translation>
  </message>
  <message id="suiteNoPrinter">
   <source>Printing needs the suite's print program, which is not installed.
Pictures can be printed with the program that opens them: Open With in the list's menu.</source>
   <translation type="unfinished">Zum Drucken wird das Druckprogramm der Suite gebraucht, das nicht installiert ist.
Bilder lassen sich mit dem Programm drucken, das sie öffnet: „Öffnen mit“ im Menü der Liste.</translation>
  </message>
  <message id="suiteListNotWritten">
   <source>The list of pictures for the print program could not be written: %1</source>
   <translation type="unfinished">Die Liste der Bilder für das Druckprogramm konnte nicht geschrieben werden: %1</translation>
  </message>
  <message id="suiteNoTrimmer">
   <source>Trimming videos needs the suite's video program, which is not installed.</source>
   <translation type="unfinished">Zum Schneiden von Videos wird das Videoprogramm der Suite gebraucht, das nicht installiert ist.</translation>
  </message>
  <message id="suiteTrimNotWritten">
   <source>The video program's settings could not be written: %1</source>
   <translation type="unfinished">Die Einstellungen des Videoprogramms konnten nicht geschrieben werden: %1</translation>
  </message>
  <message id="suiteNoClips">
   <source>Don't support AVI and ASF format.</source>
   <translation type="unfinished">AVI und ASF werden hier nicht unterstützt.</translation>
  </message>
  <message id="suiteWarning">
   <source>Warning</source>
   <translation type="unfinished">Warnung</translation>
  </message>
  <message id="screenSaverSet">
   <source>The screen saver shows these pictures from now on.</source>
   <translation type="unfinished">Der Bildschirmschoner zeigt von jetzt an diese Bilder.</translation>
  </message>
  <message id="screenSaverNoPictures">
   <source>There are no pictures here. Select the pictures, or open the folder, that the screen saver is to show.</source>
   <translation type="unfinished">Hier sind keine Bilder. Wählen Sie die Bilder aus oder öffnen Sie den Ordner, die der Bildschirmschoner zeigen soll.</translation>
  </message>
  <message id="screenSaverMissing">
   <source>No screen saver that shows pictures is installed: it needs the programs xscreensaver and glslideshow.
Their packages are usually called xscreensaver and xscreensaver-gl.</source>
   <translation type="unfinished">Es ist kein Bildschirmschoner installiert, der Bilder zeigt: Dazu gehören die Programme xscreensaver und glslideshow.
Ihre Pakete heißen meist xscreensaver und xscreensaver-gl.</translation>
  </message>
  <message id="screenSaverNoScreen">
   <source>In a Wayland session the desktop alone decides what covers the screen, so there is no screen saver to set. It works in a session under X11.</source>
   <translation type="unfinished">In einer Wayland-Sitzung bestimmt allein der Desktop, was den Bildschirm bedeckt; deshalb lässt sich kein Bildschirmschoner einstellen. In einer Sitzung unter X11 geht es.</translation>
  </message>
  <message id="screenSaverNotWritten">
   <source>The screen saver could not be set: %1</source>
   <translation type="unfinished">Der Bildschirmschoner konnte nicht eingestellt werden: %1</translation>
  </message>
  <message id="captureNothing">
   <source>There is no other window to capture.</source>
   <translation type="unfinished">Es gibt kein anderes Fenster, das aufgenommen werden könnte.</translation>
  </message>
  <message id="captureNoFolder">
   <source>Choose a folder on the left first: captured pictures are saved there.</source>
   <translation type="unfinished">Wählen Sie zuerst links einen Ordner: Dort werden die Aufnahmen gespeichert.</translation>
  </message>
  <message id="captureNotSaved">
   <source>The picture could not be taken or saved.</source>
   <translation type="unfinished">Das Bild konnte nicht aufgenommen oder gespeichert werden.</translation>
  </message>
  <message id="propertiesNothing">
   <source>Select the files whose properties you want to see first.</source>
   <translation type="unfinished">Wählen Sie zuerst die Dateien aus, deren Eigenschaften Sie sehen möchten.</translation>
  </message>
  <message id="waitingQuestion">
   <source>This window waits until the print program has ended.</source>
   <translation type="unfinished">Dieses Fenster wartet, bis das Druckprogramm beendet ist.</translation>
  </message>
  <message id="waitingWait">
   <source>&amp;Wait</source>
   <translation type="unfinished">&amp;Warten</translation>
  </message>
  <message id="waitingUse">
   <source>&amp;Use It Now</source>
   <translation type="unfinished">&amp;Jetzt benutzen</translation>
  </message>
  <message id="waitingClose">
   <source>&amp;Close It</source>
   <translation type="unfinished">&amp;Schließen</translation>
  </message>
  <message id="suiteNoShow">
   <source>There are no pictures here to show.</source>
   <translation type="unfinished">Hier gibt es keine Bilder, die gezeigt werden könnten.</translation>
  </message>
  <message id="handsetNoHandset">
   <source>Fail to Communicate with Mobile Handset.</source>
   <translation type="unfinished">Keine Verbindung zum Handy.</translation>
  </message>
  <message id="handsetNoSpace">
   <source>The storge space in not enough.</source>
   <translation type="unfinished">Der Speicherplatz reicht nicht aus.</translation>
  </message>
  <message id="handsetTransferFailed">
   <source>Upload failed .</source>
   <translation type="unfinished">Übertragung fehlgeschlagen.</translation>
  </message>
  <message id="handsetNoItem">
   <source>There is no item in Mobile handset.</source>
   <translation type="unfinished">Auf dem Handy ist nichts vorhanden.</translation>
  </message>
  <message id="handsetBadDescriptor">
   <source>JAD file format is incorrect, cannot upload.</source>
   <translation type="unfinished">Das Format der JAD-Datei ist falsch, sie kann nicht übertragen werden.</translation>
  </message>
  <message id="handsetSuccessful">
   <source>Transfer Successfully.</source>
   <translation type="unfinished">Übertragung erfolgreich.</translation>
  </message>
  <message id="handsetCancelled">
   <source>Transfer Cancel.</source>
   <translation type="unfinished">Übertragung abgebrochen.</translation>
  </message>
  <message id="handsetCounter">
   <source>%1 / %2</source>
   <translation type="unfinished">%1 / %2</translation>
  </message>
  <message id="handsetMainWallpaper">
   <source>Main Wallpaper</source>
   <translation type="unfinished">Haupthintergrund</translation>
  </message>
  <message id="handsetSubWallpaper">
   <source>Sub Wallpaper</source>
   <translation type="unfinished">Außenhintergrund</translation>
  </message>
  <message id="handsetMyAlbum">
   <source>My Album</source>
   <translation type="unfinished">Mein Album</translation>
  </message>
  <message id="handsetFrame">
   <source>Frame</source>
   <translation type="unfinished">Rahmen</translation>
  </message>
  <message id="handsetRing">
   <source>Ring</source>
   <translation type="unfinished">Klingeltöne</translation>
  </message>
  <message id="handsetAnimation">
   <source>Animation</source>
   <translation type="unfinished">Animationen</translation>
  </message>
  <message id="handsetJava">
   <source>Java</source>
   <translation type="unfinished">Java</translation>
  </message>
  <message id="handsetStart">
   <source>&amp;Start</source>
   <translation type="unfinished">&amp;Start</translation>
  </message>
  <message id="handsetStop">
   <source>S&amp;top</source>
   <translation type="unfinished">S&amp;topp</translation>
  </message>
  <message id="handsetClose">
   <source>&amp;Close</source>
   <translation type="unfinished">S&amp;chließen</translation>
  </message>
  <message id="handsetLooking">
   <source>Looking for the handset…</source>
   <translation type="unfinished">Das Handy wird gesucht …</translation>
  </message>
  <message id="handsetReadyModel">
   <source>%1 is connected.</source>
   <translation type="unfinished">%1 ist verbunden.</translation>
  </message>
  <message id="handsetReady">
   <source>The handset is connected.</source>
   <translation type="unfinished">Das Handy ist verbunden.</translation>
  </message>
  <message id="handsetStopping">
   <source>Stopping…</source>
   <translation type="unfinished">Wird angehalten …</translation>
  </message>
  <message id="handsetChoosePort">
   <source>Choose the handset's port in Tools / Options first.</source>
   <translation type="unfinished">Wählen Sie zuerst den Anschluss des Handys unter Extras / Optionen.</translation>
  </message>
  <message id="handsetProgressFile">
   <source>Progress of this file</source>
   <translation type="unfinished">Fortschritt dieser Datei</translation>
  </message>
  <message id="handsetProgressAll">
   <source>Progress in all</source>
   <translation type="unfinished">Fortschritt insgesamt</translation>
  </message>
  <message id="handsetSendTitle">
   <source>Download to Mobile</source>
   <translation type="unfinished">Auf das Handy übertragen</translation>
  </message>
  <message id="handsetNothingSelected">
   <source>Select the files for the handset first.</source>
   <translation type="unfinished">Wählen Sie zuerst die Dateien für das Handy aus.</translation>
  </message>
  <message id="handsetTable">
   <source>Files for the handset</source>
   <translation type="unfinished">Dateien für das Handy</translation>
  </message>
  <message id="handsetFile">
   <source>File</source>
   <translation type="unfinished">Datei</translation>
  </message>
  <message id="handsetSentAs">
   <source>Arrives As</source>
   <translation type="unfinished">Kommt an als</translation>
  </message>
  <message id="handsetPlace">
   <source>In</source>
   <translation type="unfinished">In</translation>
  </message>
  <message id="handsetSize">
   <source>Size</source>
   <translation type="unfinished">Größe</translation>
  </message>
  <message id="handsetNote">
   <source>Note</source>
   <translation type="unfinished">Hinweis</translation>
  </message>
  <message id="handsetPlanning" numerus="yes">
   <source>Looking at %1 files…</source>
   <translation type="unfinished">
    <numerusform>%1 Datei wird angesehen …</numerusform>
    <numerusform>%1 Dateien werden angesehen …</numerusform>
   </translation>
  </message>
  <message id="handsetToSend" numerus="yes">
   <source>%1 files are ready to be sent.</source>
   <translation type="unfinished">
    <numerusform>%1 Datei kann übertragen werden.</numerusform>
    <numerusform>%1 Dateien können übertragen werden.</numerusform>
   </translation>
  </message>
  <message id="handsetNoneToSend">
   <source>None of these files can be sent.</source>
   <translation type="unfinished">Keine dieser Dateien kann übertragen werden.</translation>
  </message>
  <message id="handsetInAll">
   <source>%1 in all.</source>
   <translation type="unfinished">%1 insgesamt.</translation>
  </message>
  <message id="handsetSending">
   <source>Sending %1</source>
   <translation type="unfinished">%1 wird übertragen</translation>
  </message>
  <message id="handsetSent" numerus="yes">
   <source>%1 files are on the handset now.</source>
   <translation type="unfinished">
    <numerusform>%1 Datei ist jetzt auf dem Handy.</numerusform>
    <numerusform>%1 Dateien sind jetzt auf dem Handy.</numerusform>
   </translation>
  </message>
  <message id="handsetWaiting">
   <source>Looking at it…</source>
   <translation type="unfinished">Wird angesehen …</translation>
  </message>
  <message id="handsetUnchanged">
   <source>As it is</source>
   <translation type="unfinished">Wie sie ist</translation>
  </message>
  <message id="handsetFitted">
   <source>Fitted to the handset's screen, %1 × %2</source>
   <translation type="unfinished">Auf den Bildschirm des Handys verkleinert, %1 × %2</translation>
  </message>
  <message id="handsetAsJpeg">
   <source>As a JPEG picture</source>
   <translation type="unfinished">Als JPEG-Bild</translation>
  </message>
  <message id="handsetAsSmaf">
   <source>As a SMAF ring tone</source>
   <translation type="unfinished">Als SMAF-Klingelton</translation>
  </message>
  <message id="handsetWithArchive">
   <source>With its program, %1</source>
   <translation type="unfinished">Mit ihrem Programm %1</translation>
  </message>
  <message id="handsetTuneKept">
   <source>As MIDI, since it cannot be converted: %1</source>
   <translation type="unfinished">Als MIDI, da nicht umwandelbar: %1</translation>
  </message>
  <message id="handsetOtherKind">
   <source>As it is; the handset may not know what to do with it</source>
   <translation type="unfinished">Wie sie ist; das Handy kann damit vielleicht nichts anfangen</translation>
  </message>
  <message id="handsetTooLong">
   <source>Too long: the handset takes ring tones of up to %1 bytes</source>
   <translation type="unfinished">Zu lang: das Handy nimmt Klingeltöne bis %1 Byte</translation>
  </message>
  <message id="handsetDescriptorBad">
   <source>Its JAD file is incorrect and ends the transfer</source>
   <translation type="unfinished">Die JAD-Datei ist falsch und beendet die Übertragung</translation>
  </message>
  <message id="handsetArchiveMissing">
   <source>%1 is missing, which ends the transfer</source>
   <translation type="unfinished">%1 fehlt, das beendet die Übertragung</translation>
  </message>
  <message id="handsetNotPrepared">
   <source>Cannot be made ready: %1</source>
   <translation type="unfinished">Kann nicht angepasst werden: %1</translation>
  </message>
  <message id="handsetNotAFile">
   <source>Is no file</source>
   <translation type="unfinished">Ist keine Datei</translation>
  </message>
  <message id="handsetGone">
   <source>Is not there any more</source>
   <translation type="unfinished">Ist nicht mehr da</translation>
  </message>
  <message id="handsetIsSent">
   <source>Sent</source>
   <translation type="unfinished">Übertragen</translation>
  </message>
  <message id="handsetIsNotSent">
   <source>Not sent</source>
   <translation type="unfinished">Nicht übertragen</translation>
  </message>
  <message id="handsetUnderWay">
   <source>Being sent</source>
   <translation type="unfinished">Wird übertragen</translation>
  </message>
  <message id="handsetFetchTitle">
   <source>Upload to PC</source>
   <translation type="unfinished">Auf den PC übertragen</translation>
  </message>
  <message id="handsetFetchPhotos">
   <source>Copy from the handset</source>
   <translation type="unfinished">Vom Handy kopieren</translation>
  </message>
  <message id="handsetFetchRings">
   <source>Ring tones of the handset</source>
   <translation type="unfinished">Klingeltöne des Handys</translation>
  </message>
  <message id="handsetFetchAnimations">
   <source>Animations of the handset</source>
   <translation type="unfinished">Animationen des Handys</translation>
  </message>
  <message id="handsetInto">
   <source>Into %1</source>
   <translation type="unfinished">Nach %1</translation>
  </message>
  <message id="handsetChoose">
   <source>Tick what to copy.</source>
   <translation type="unfinished">Kreuzen Sie an, was kopiert werden soll.</translation>
  </message>
  <message id="handsetCounting">
   <source>Counting…</source>
   <translation type="unfinished">Wird gezählt …</translation>
  </message>
  <message id="handsetFetching">
   <source>Copying from %1</source>
   <translation type="unfinished">Wird aus %1 kopiert</translation>
  </message>
  <message id="handsetFetched" numerus="yes">
   <source>%1 files were copied from the handset.</source>
   <translation type="unfinished">
    <numerusform>%1 Datei wurde vom Handy kopiert.</numerusform>
    <numerusform>%1 Dateien wurden vom Handy kopiert.</numerusform>
   </translation>
  </message>
  <message id="handsetKeptFiles">
   <source>What has arrived is in %1.</source>
   <translation type="unfinished">Was angekommen ist, liegt in %1.</translation>
  </message>
  <message id="handsetNoFolder">
   <source>Choose a folder to copy into first.</source>
   <translation type="unfinished">Wählen Sie zuerst einen Ordner, in den kopiert werden soll.</translation>
  </message>
  <message id="commandUploadRings">
   <source>Upload Ring Tones to PC</source>
   <translation type="unfinished">Klingeltöne auf den PC übertragen</translation>
  </message>
  <message id="commandUploadAnimations">
   <source>Upload Animations to PC</source>
   <translation type="unfinished">Animationen auf den PC übertragen</translation>
  </message>
  <message id="handsetDeleteToo">
   <source>Remove from Mobile Handset too?</source>
   <translation type="unfinished">Auch vom Handy löschen?</translation>
  </message>
  <message id="handsetDeleteAsk" numerus="yes">
   <source>Delete %1 files?</source>
   <translation type="unfinished">
    <numerusform>%1 Datei löschen?</numerusform>
    <numerusform>%1 Dateien löschen?</numerusform>
   </translation>
  </message>
  <message id="handsetDeleteWhy">
   <source>What lies in this folder came from the handset. On this computer, what is deleted goes to the trash.</source>
   <translation type="unfinished">Was in diesem Ordner liegt, kommt vom Handy. Auf diesem Computer geht Gelöschtes in den Papierkorb.</translation>
  </message>
  <message id="handsetDeleteWhyForGood">
   <source>What lies in this folder came from the handset. On this computer, what is deleted is gone for good.</source>
   <translation type="unfinished">Was in diesem Ordner liegt, kommt vom Handy. Auf diesem Computer ist Gelöschtes endgültig weg.</translation>
  </message>
  <message id="handsetDeleting">
   <source>Removing from the handset</source>
   <translation type="unfinished">Wird vom Handy gelöscht</translation>
  </message>
  <message id="handsetDeleteFailed">
   <source>Can not delete default "Photo" or "Ring".</source>
   <translation type="unfinished">Vorgegebene Einträge in „Foto“ oder „Klingelton“ können nicht gelöscht werden.</translation>
  </message>
  <message id="infoTitle">
   <source>Information on %1</source>
   <translation type="unfinished">Informationen zu %1</translation>
  </message>
  <message id="infoPane">
   <source>Photo Information</source>
   <translation type="unfinished">Fotoinformationen</translation>
  </message>
  <message id="infoPages">
   <source>Pages</source>
   <translation type="unfinished">Seiten</translation>
  </message>
  <message id="infoGeneral">
   <source>General</source>
   <translation type="unfinished">Allgemein</translation>
  </message>
  <message id="infoExif">
   <source>EXIF</source>
   <translation type="unfinished">EXIF</translation>
  </message>
  <message id="infoNothing">
   <source>Select a photo to see its facts</source>
   <translation type="unfinished">Wählen Sie ein Foto aus, um seine Angaben zu sehen</translation>
  </message>
  <message id="infoNothingMore">
   <source>Name, size, dates and caption are shown here.</source>
   <translation type="unfinished">Hier stehen Name, Größe, Zeiten und Bildunterschrift.</translation>
  </message>
  <message id="infoName">
   <source>Name:</source>
   <translation type="unfinished">Name:</translation>
  </message>
  <message id="infoFolder">
   <source>Folder:</source>
   <translation type="unfinished">Ordner:</translation>
  </message>
  <message id="infoKind">
   <source>Type:</source>
   <translation type="unfinished">Typ:</translation>
  </message>
  <message id="infoPixels">
   <source>Picture size:</source>
   <translation type="unfinished">Bildgröße:</translation>
  </message>
  <message id="infoSize">
   <source>Size:</source>
   <translation type="unfinished">Größe:</translation>
  </message>
  <message id="infoCreated">
   <source>Created:</source>
   <translation type="unfinished">Erstellt:</translation>
  </message>
  <message id="infoModified">
   <source>Modified:</source>
   <translation type="unfinished">Geändert:</translation>
  </message>
  <message id="infoTaken">
   <source>Taken:</source>
   <translation type="unfinished">Aufgenommen:</translation>
  </message>
  <message id="infoSeveral">
   <source>Several values</source>
   <translation type="unfinished">Verschiedene Werte</translation>
  </message>
  <message id="infoReading">
   <source>Reading...</source>
   <translation type="unfinished">Wird gelesen …</translation>
  </message>
  <message id="infoAndMore">
   <source>%1 and more</source>
   <translation type="unfinished">%1 und mehr</translation>
  </message>
  <message id="infoExifText">
   <source>What the camera wrote down</source>
   <translation type="unfinished">Was die Kamera notiert hat</translation>
  </message>
  <message id="listColumnHeadings">
   <source>Name|Size|Type|Modified</source>
   <translation type="unfinished">Name|Größe|Typ|Geändert</translation>
  </message>
  <message id="listDateTaken">
   <source>Date Taken</source>
   <translation type="unfinished">Aufgenommen</translation>
  </message>
  <message id="listStandardColumns">
   <source>Standard Columns</source>
   <translation type="unfinished">Übliche Spalten</translation>
  </message>
  <message id="listSorting">
   <source>Sorting: %1 of %2 files read</source>
   <translation type="unfinished">Sortieren: %1 von %2 Dateien gelesen</translation>
  </message>
  <message id="listFiles">
   <source>Files</source>
   <translation type="unfinished">Dateien</translation>
  </message>
  <message id="listThumbnailSize">
   <source>Thumbnail size</source>
   <translation type="unfinished">Größe der Vorschaubilder</translation>
  </message>
  <message id="listReading">
   <source>Reading the folder...</source>
   <translation type="unfinished">Ordner wird gelesen …</translation>
  </message>
  <message id="listFolderGone">
   <source>This folder is no longer there</source>
   <translation type="unfinished">Diesen Ordner gibt es nicht mehr</translation>
  </message>
  <message id="listFolderForbidden">
   <source>You may not look into this folder</source>
   <translation type="unfinished">Sie dürfen nicht in diesen Ordner sehen</translation>
  </message>
  <message id="listSpecialPlace">
   <source>This place holds no files</source>
   <translation type="unfinished">Dieser Ort enthält keine Dateien</translation>
  </message>
  <message id="listFolderEmpty">
   <source>This folder is empty</source>
   <translation type="unfinished">Dieser Ordner ist leer</translation>
  </message>
  <message id="listNoPictures">
   <source>No pictures here</source>
   <translation type="unfinished">Hier sind keine Bilder</translation>
  </message>
  <message id="listNoVideos">
   <source>No videos here</source>
   <translation type="unfinished">Hier sind keine Videos</translation>
  </message>
  <message id="listOtherKinds">
   <source>Other kinds of files are shown with View, Filter, All Files.</source>
   <translation type="unfinished">Andere Arten von Dateien zeigt Ansicht, Filter, Alle Dateien.</translation>
  </message>
  <message id="kindFolder">
   <source>Folder</source>
   <translation type="unfinished">Ordner</translation>
  </message>
  <message id="kindPlainFile">
   <source>File</source>
   <translation type="unfinished">Datei</translation>
  </message>
  <message id="kindFile">
   <source>%1 file</source>
   <translation type="unfinished">%1-Datei</translation>
  </message>
  <message id="kindPicture">
   <source>%1 picture</source>
   <translation type="unfinished">%1-Bild</translation>
  </message>
  <message id="kindVideo">
   <source>%1 video</source>
   <translation type="unfinished">%1-Video</translation>
  </message>
  <message id="kindSound">
   <source>%1 sound</source>
   <translation type="unfinished">%1-Klang</translation>
  </message>
  <message id="kindSearchResult">
   <source>Search result</source>
   <translation type="unfinished">Suchergebnis</translation>
  </message>
  <message id="noticeBar">
   <source>Notice</source>
   <translation type="unfinished">Hinweis</translation>
  </message>
  <message id="noticePhotos" numerus="yes">
   <source>A card with %1 photos is here.</source>
   <translation type="unfinished">
    <numerusform>Eine Karte mit %1 Foto ist da.</numerusform>
    <numerusform>Eine Karte mit %1 Fotos ist da.</numerusform>
   </translation>
  </message>
  <message id="noticeClips" numerus="yes">
   <source>A card with %1 video clips is here.</source>
   <translation type="unfinished">
    <numerusform>Eine Karte mit %1 Videoclip ist da.</numerusform>
    <numerusform>Eine Karte mit %1 Videoclips ist da.</numerusform>
   </translation>
  </message>
  <message id="noticeBoth">
   <source>A card with %1 photos and video clips is here.</source>
   <translation type="unfinished">Eine Karte mit %1 Fotos und Videoclips ist da.</translation>
  </message>
  <message id="noticeMany">
   <source>A card with more than %1 photos is here.</source>
   <translation type="unfinished">Eine Karte mit mehr als %1 Fotos ist da.</translation>
  </message>
  <message id="noticePhone">
   <source>A phone may be connected at %1.</source>
   <translation type="unfinished">An %1 ist vielleicht ein Telefon angeschlossen.</translation>
  </message>
  <message id="noticeCopy">
   <source>Copy Photos...</source>
   <translation type="unfinished">Fotos kopieren …</translation>
  </message>
  <message id="noticeGet">
   <source>Get Files From the Phone...</source>
   <translation type="unfinished">Dateien vom Telefon holen …</translation>
  </message>
  <message id="noticeSend">
   <source>Send Selection to the Phone...</source>
   <translation type="unfinished">Auswahl an das Telefon senden …</translation>
  </message>
  <message id="noticeClose">
   <source>Close Notice</source>
   <translation type="unfinished">Hinweis schließen</translation>
  </message>
  <message id="tabDevice">
   <source>Device</source>
   <translation type="unfinished">Gerät</translation>
  </message>
  <message id="tabFolder">
   <source>Folder</source>
   <translation type="unfinished">Ordner</translation>
  </message>
  <message id="tabSearch">
   <source>Search</source>
   <translation type="unfinished">Suche</translation>
  </message>
  <message id="placeFavouritesAndDevices">
   <source>Favourites and devices</source>
   <translation type="unfinished">Favoriten und Geräte</translation>
  </message>
  <message id="placeFolders">
   <source>Folders</source>
   <translation type="unfinished">Ordner</translation>
  </message>
  <message id="placeDevices">
   <source>Devices</source>
   <translation type="unfinished">Geräte</translation>
  </message>
  <message id="placeHome">
   <source>Home</source>
   <translation type="unfinished">Persönlicher Ordner</translation>
  </message>
  <message id="placeFileSystem">
   <source>File System</source>
   <translation type="unfinished">Dateisystem</translation>
  </message>
  <message id="placeUp">
   <source>Up</source>
   <translation type="unfinished">Nach oben</translation>
  </message>
  <message id="placeUpTip">
   <source>To the folder above (Alt+Up)</source>
   <translation type="unfinished">Zum übergeordneten Ordner (Alt+Hoch)</translation>
  </message>
  <message id="searchNoneYet">
   <source>No search yet</source>
   <translation type="unfinished">Noch keine Suche</translation>
  </message>
  <message id="searchComesLater">
   <source>Searching by name, caption and date comes in a later version.</source>
   <translation type="unfinished">Die Suche nach Name, Beschriftung und Datum kommt in einer späteren Version.</translation>
  </message>
  <message id="renameBadCharacters">
   <source>These characters cann't used in filename:
/ \ : * ? "" &lt; &gt; |</source>
   <translation type="unfinished">Diese Zeichen dürfen in Dateinamen nicht vorkommen:
/ \ : * ? "" &lt; &gt; |</translation>
  </message>
  <message id="renameTooLong">
   <source>Can't rename. The file name or file extension is too long.</source>
   <translation type="unfinished">Umbenennen nicht möglich. Der Dateiname oder die Dateiendung ist zu lang.</translation>
  </message>
  <message id="renameTitle">
   <source>Rename</source>
   <translation type="unfinished">Umbenennen</translation>
  </message>
  <message id="renamePrefix">
   <source>&amp;Prefix :</source>
   <translation type="unfinished">&amp;Anfang:</translation>
  </message>
  <message id="renamePrefixTip">
   <source>The new names begin with this text</source>
   <translation type="unfinished">Die neuen Namen beginnen mit diesem Text</translation>
  </message>
  <message id="renameDigits">
   <source>&amp;digits</source>
   <translation type="unfinished">&amp;Ziffern:</translation>
  </message>
  <message id="renameDigitsTip">
   <source>How many digits the number has at least, with zeros in front</source>
   <translation type="unfinished">Wie viele Ziffern die Nummer mindestens hat, mit Nullen davor</translation>
  </message>
  <message id="renameDigitsRange">
   <source>1 to 16</source>
   <translation type="unfinished">1 bis 16</translation>
  </message>
  <message id="renameSample">
   <source>Sample: %1</source>
   <translation type="unfinished">Beispiel: %1</translation>
  </message>
  <message id="renameOldName">
   <source>Old name</source>
   <translation type="unfinished">Alter Name</translation>
  </message>
  <message id="renameNewName">
   <source>New name</source>
   <translation type="unfinished">Neuer Name</translation>
  </message>
  <message id="renameNote">
   <source>Note</source>
   <translation type="unfinished">Bemerkung</translation>
  </message>
  <message id="renameTaken">
   <source>Taken: another number</source>
   <translation type="unfinished">Vergeben: andere Nummer</translation>
  </message>
  <message id="renameTakenTip">
   <source>The name that the next number gives is there already, so this file gets one with a second number</source>
   <translation type="unfinished">Den Namen mit der nächsten Nummer gibt es schon, daher erhält diese Datei einen mit einer zweiten Nummer</translation>
  </message>
  <message id="renameKeeps">
   <source>Keeps its name</source>
   <translation type="unfinished">Behält ihren Namen</translation>
  </message>
  <message id="renameKeepsTip">
   <source>Search results (asr) and shortcuts (lnk) are not renamed</source>
   <translation type="unfinished">Suchergebnisse (asr) und Verknüpfungen (lnk) werden nicht umbenannt</translation>
  </message>
  <message id="renamePlan">
   <source>Old and new names</source>
   <translation type="unfinished">Alte und neue Namen</translation>
  </message>
  <message id="renameLooking">
   <source>Looking for names that are taken…</source>
   <translation type="unfinished">Vergebene Namen werden gesucht …</translation>
  </message>
  <message id="renameFiles" numerus="yes">
   <source>%1 files</source>
   <translation type="unfinished">
    <numerusform>%1 Datei</numerusform>
    <numerusform>%1 Dateien</numerusform>
   </translation>
  </message>
  <message id="renameClashes" numerus="yes">
   <source>%1 get another number because the name is taken</source>
   <translation type="unfinished">
    <numerusform>%1 erhält eine andere Nummer, weil der Name vergeben ist</numerusform>
    <numerusform>%1 erhalten eine andere Nummer, weil der Name vergeben ist</numerusform>
   </translation>
  </message>
  <message id="renameKept" numerus="yes">
   <source>%1 keep their names</source>
   <translation type="unfinished">
    <numerusform>%1 behält ihren Namen</numerusform>
    <numerusform>%1 behalten ihre Namen</numerusform>
   </translation>
  </message>
  <message id="renameAnd">
   <source>%1, %2</source>
   <translation type="unfinished">%1, %2</translation>
  </message>
  <message id="renameOnlyTaken">
   <source>&amp;Show only files whose name was taken</source>
   <translation type="unfinished">&amp;Nur Dateien zeigen, deren Name vergeben war</translation>
  </message>
  <message id="renameDo" numerus="yes">
   <source>&amp;Rename %1 Files</source>
   <translation type="unfinished">
    <numerusform>%1 Datei &amp;umbenennen</numerusform>
    <numerusform>%1 Dateien &amp;umbenennen</numerusform>
   </translation>
  </message>
  <message id="skinTabs">
   <source>Places</source>
   <translation type="unfinished">Orte</translation>
  </message>
  <message id="skinTabDeviceTip">
   <source>Favourites and devices</source>
   <translation type="unfinished">Favoriten und Geräte</translation>
  </message>
  <message id="skinTabFolderTip">
   <source>All folders of this computer</source>
   <translation type="unfinished">Alle Ordner dieses Rechners</translation>
  </message>
  <message id="skinTabSearchTip">
   <source>Find files (F3)</source>
   <translation type="unfinished">Dateien suchen (F3)</translation>
  </message>
  <message id="skinLeaveSearch">
   <source>Changing folders will cancel your search. Are you sure you want to change folders?</source>
   <translation type="unfinished">Ein anderer Ordner beendet die Suche. Wirklich den Ordner wechseln?</translation>
  </message>
  <message id="stampReadOnly">
   <source>The read-only file can not be processed.</source>
   <translation type="unfinished">Die schreibgeschützte Datei kann nicht bearbeitet werden.</translation>
  </message>
  <message id="stampChanging" numerus="yes">
   <source>Changing the time stamps of %1 files</source>
   <translation type="unfinished">
    <numerusform>Der Zeitstempel von %1 Datei wird geändert</numerusform>
    <numerusform>Die Zeitstempel von %1 Dateien werden geändert</numerusform>
   </translation>
  </message>
  <message id="stampUndoName">
   <source>Undo Time Stamps of “%1”</source>
   <translation type="unfinished">Zeitstempel von „%1“ rückgängig</translation>
  </message>
  <message id="stampUndo" numerus="yes">
   <source>Undo Time Stamps of %1 Items</source>
   <translation type="unfinished">
    <numerusform>Zeitstempel von %1 Element rückgängig</numerusform>
    <numerusform>Zeitstempel von %1 Elementen rückgängig</numerusform>
   </translation>
  </message>
  <message id="stampTitle">
   <source>Change Time Stamp</source>
   <translation type="unfinished">Zeitstempel ändern</translation>
  </message>
  <message id="stampNothing">
   <source>Select the files whose time stamps are to be changed.</source>
   <translation type="unfinished">Erst die Dateien auswählen, deren Zeitstempel geändert werden sollen.</translation>
  </message>
  <message id="stampWhat" numerus="yes">
   <source>Time stamps of %1 files</source>
   <translation type="unfinished">
    <numerusform>Zeitstempel von %1 Datei</numerusform>
    <numerusform>Zeitstempel von %1 Dateien</numerusform>
   </translation>
  </message>
  <message id="stampCreation">
   <source>&amp;Creation time</source>
   <translation type="unfinished">&amp;Erstellungszeit</translation>
  </message>
  <message id="stampModified">
   <source>Last &amp;modified time</source>
   <translation type="unfinished">Zeit der letzten Änder&amp;ung</translation>
  </message>
  <message id="stampFromCreation">
   <source>The date the &amp;file was created</source>
   <translation type="unfinished">Zeitpunkt, zu dem die &amp;Datei erstellt wurde</translation>
  </message>
  <message id="stampFromCreationTip">
   <source>A creation time cannot be set from itself</source>
   <translation type="unfinished">Eine Erstellungszeit kann nicht aus sich selbst gesetzt werden</translation>
  </message>
  <message id="stampFromNow">
   <source>Current date and &amp;time</source>
   <translation type="unfinished">&amp;Jetzige Zeit</translation>
  </message>
  <message id="stampFromExif">
   <source>&amp;EXIF date, if available</source>
   <translation type="unfinished">E&amp;XIF-Datum, falls vorhanden</translation>
  </message>
  <message id="stampFromExifIn">
   <source>&amp;EXIF date, if available (in %1 of %2)</source>
   <translation type="unfinished">E&amp;XIF-Datum, falls vorhanden (bei %1 von %2)</translation>
  </message>
  <message id="stampFromPicked">
   <source>T&amp;his date and time:</source>
   <translation type="unfinished">Die&amp;ser Zeitpunkt:</translation>
  </message>
  <message id="stampDate">
   <source>Date</source>
   <translation type="unfinished">Datum</translation>
  </message>
  <message id="stampTime">
   <source>Time</source>
   <translation type="unfinished">Uhrzeit</translation>
  </message>
  <message id="stampLooking">
   <source>Looking for EXIF dates…</source>
   <translation type="unfinished">EXIF-Daten werden gesucht …</translation>
  </message>
  <message id="stampNoFlag">
   <source>Choose which of the two times to change.</source>
   <translation type="unfinished">Auswählen, welche der beiden Zeiten geändert werden soll.</translation>
  </message>
  <message id="stampNoDate">
   <source>This date cannot be set.</source>
   <translation type="unfinished">Dieses Datum kann nicht gesetzt werden.</translation>
  </message>
  <message id="stampSetsModified" numerus="yes">
   <source>The modification time of %1 files becomes %2.</source>
   <translation type="unfinished">
    <numerusform>Die Änderungszeit von %1 Datei wird auf %2 gesetzt.</numerusform>
    <numerusform>Die Änderungszeit von %1 Dateien wird auf %2 gesetzt.</numerusform>
   </translation>
  </message>
  <message id="stampSetsCreation" numerus="yes">
   <source>The creation time of %1 files becomes %2.</source>
   <translation type="unfinished">
    <numerusform>Die Erstellungszeit von %1 Datei wird auf %2 gesetzt.</numerusform>
    <numerusform>Die Erstellungszeit von %1 Dateien wird auf %2 gesetzt.</numerusform>
   </translation>
  </message>
  <message id="stampSetsBoth" numerus="yes">
   <source>The creation and modification times of %1 files become %2.</source>
   <translation type="unfinished">
    <numerusform>Erstellungs- und Änderungszeit von %1 Datei werden auf %2 gesetzt.</numerusform>
    <numerusform>Erstellungs- und Änderungszeit von %1 Dateien werden auf %2 gesetzt.</numerusform>
   </translation>
  </message>
  <message id="stampToCreation">
   <source>the time at which each was created</source>
   <translation type="unfinished">den Zeitpunkt der jeweiligen Erstellung</translation>
  </message>
  <message id="stampToNow">
   <source>the present time</source>
   <translation type="unfinished">die jetzige Zeit</translation>
  </message>
  <message id="stampToExif">
   <source>the EXIF date of each</source>
   <translation type="unfinished">das jeweilige EXIF-Datum</translation>
  </message>
  <message id="stampLeft" numerus="yes">
   <source>%1 files have no EXIF date and are left as they are.</source>
   <translation type="unfinished">
    <numerusform>%1 Datei hat kein EXIF-Datum und bleibt, wie sie ist.</numerusform>
    <numerusform>%1 Dateien haben kein EXIF-Datum und bleiben, wie sie sind.</numerusform>
   </translation>
  </message>
  <message id="statusFiles" numerus="yes">
   <source>%1 files</source>
   <translation type="unfinished">
    <numerusform>%1 Datei</numerusform>
    <numerusform>%1 Dateien</numerusform>
   </translation>
  </message>
  <message id="statusFolders" numerus="yes">
   <source>%1 folders</source>
   <translation type="unfinished">
    <numerusform>%1 Ordner</numerusform>
    <numerusform>%1 Ordner</numerusform>
   </translation>
  </message>
  <message id="statusFoldersAndFiles">
   <source>%1, %2</source>
   <translation type="unfinished">%1, %2</translation>
  </message>
  <message id="statusReading" numerus="yes">
   <source>Reading: %1 files</source>
   <translation type="unfinished">
    <numerusform>Gelesen: %1 Datei</numerusform>
    <numerusform>Gelesen: %1 Dateien</numerusform>
   </translation>
  </message>
  <message id="statusSelected">
   <source>%1 selected</source>
   <translation type="unfinished">%1 ausgewählt</translation>
  </message>
  <message id="statusThumbnails">
   <source>Thumbnails</source>
   <translation type="unfinished">Vorschaubilder</translation>
  </message>
  <message id="statusThumbnailsLeft" numerus="yes">
   <source>%1 thumbnails left</source>
   <translation type="unfinished">
    <numerusform>noch %1 Vorschaubild</numerusform>
    <numerusform>noch %1 Vorschaubilder</numerusform>
   </translation>
  </message>
  <message id="statusOneByte">
   <source>1 byte</source>
   <translation type="unfinished">1 Byte</translation>
  </message>
  <message id="toneDuration">
   <source>Duration:</source>
   <translation type="unfinished">Dauer:</translation>
  </message>
  <message id="toneForm">
   <source>Sound:</source>
   <translation type="unfinished">Klang:</translation>
  </message>
  <message id="toneNotes">
   <source>Notes:</source>
   <translation type="unfinished">Noten:</translation>
  </message>
  <message id="tonePolyphony">
   <source>At once:</source>
   <translation type="unfinished">Zugleich:</translation>
  </message>
  <message id="toneChannels">
   <source>Channels:</source>
   <translation type="unfinished">Kanäle:</translation>
  </message>
  <message id="toneTitle">
   <source>Title:</source>
   <translation type="unfinished">Titel:</translation>
  </message>
  <message id="toneWaves">
   <source>Recordings:</source>
   <translation type="unfinished">Aufnahmen:</translation>
  </message>
  <message id="toneHandset">
   <source>Handset:</source>
   <translation type="unfinished">Handy:</translation>
  </message>
  <message id="toneWaveForm">
   <source>%1 bits, %2, %3 Hz</source>
   <translation type="unfinished">%1 Bit, %2, %3 Hz</translation>
  </message>
  <message id="toneMono">
   <source>mono</source>
   <translation type="unfinished">mono</translation>
  </message>
  <message id="toneStereo">
   <source>stereo</source>
   <translation type="unfinished">stereo</translation>
  </message>
  <message id="toneMoreChannels" numerus="yes">
   <source>%1 channels</source>
   <translation type="unfinished">
    <numerusform>%1 Kanal</numerusform>
    <numerusform>%1 Kanäle</numerusform>
   </translation>
  </message>
  <message id="toneSuits">
   <source>Can become a ring tone as it is</source>
   <translation type="unfinished">Kann so, wie sie ist, ein Klingelton werden</translation>
  </message>
  <message id="toneNotRead">
   <source>The file cannot be read: %1</source>
   <translation type="unfinished">Die Datei lässt sich nicht lesen: %1</translation>
  </message>
  <message id="toneNotMidi">
   <source>This is no MIDI file.</source>
   <translation type="unfinished">Das ist keine MIDI-Datei.</translation>
  </message>
  <message id="toneMidiCut">
   <source>This MIDI file breaks off at its beginning.</source>
   <translation type="unfinished">Diese MIDI-Datei bricht an ihrem Anfang ab.</translation>
  </message>
  <message id="toneMidiFormat">
   <source>This is a MIDI file of a kind that is not known.</source>
   <translation type="unfinished">Das ist eine MIDI-Datei von unbekannter Art.</translation>
  </message>
  <message id="toneMidiDivision">
   <source>This MIDI file does not say how fast it is.</source>
   <translation type="unfinished">Diese MIDI-Datei sagt nicht, wie schnell sie ist.</translation>
  </message>
  <message id="toneMidiDamaged">
   <source>This MIDI file is damaged.</source>
   <translation type="unfinished">Diese MIDI-Datei ist beschädigt.</translation>
  </message>
  <message id="toneMidiNoTrack">
   <source>This MIDI file holds no music.</source>
   <translation type="unfinished">Diese MIDI-Datei enthält keine Musik.</translation>
  </message>
  <message id="toneNotSmaf">
   <source>This SMAF file is damaged, or of a kind that is not known (%1).</source>
   <translation type="unfinished">Diese SMAF-Datei ist beschädigt oder von unbekannter Art (%1).</translation>
  </message>
  <message id="toneNotWav">
   <source>This WAV file is damaged, or of a kind that is not known (%1).</source>
   <translation type="unfinished">Diese WAV-Datei ist beschädigt oder von unbekannter Art (%1).</translation>
  </message>
  <message id="tonePlay">
   <source>Play</source>
   <translation type="unfinished">Abspielen</translation>
  </message>
  <message id="toneStop">
   <source>Stop</source>
   <translation type="unfinished">Anhalten</translation>
  </message>
  <message id="tonePlayTip">
   <source>Play this sound</source>
   <translation type="unfinished">Diesen Klang abspielen</translation>
  </message>
  <message id="toneStopTip">
   <source>Stop playing</source>
   <translation type="unfinished">Nicht weiter abspielen</translation>
  </message>
  <message id="toneProgress">
   <source>How far it has played</source>
   <translation type="unfinished">Wie weit abgespielt ist</translation>
  </message>
  <message id="toneTimes">
   <source>%1 of %2</source>
   <translation type="unfinished">%1 von %2</translation>
  </message>
  <message id="toneNeedsFluidSynth">
   <source>To play ring tones, install the packages fluidsynth and fluid-soundfont-gm (or timgm6mb-soundfont).</source>
   <translation type="unfinished">Um Klingeltöne abzuspielen, installieren Sie die Pakete fluidsynth und fluid-soundfont-gm (oder timgm6mb-soundfont).</translation>
  </message>
  <message id="toneNeedsSoundFont">
   <source>To play ring tones, install a sound font: the package fluid-soundfont-gm or timgm6mb-soundfont.</source>
   <translation type="unfinished">Um Klingeltöne abzuspielen, installieren Sie einen Klangsatz: das Paket fluid-soundfont-gm oder timgm6mb-soundfont.</translation>
  </message>
  <message id="toneNeedsPlayer">
   <source>To play recordings, install one of the packages pipewire-bin, pulseaudio-utils, alsa-utils and ffmpeg.</source>
   <translation type="unfinished">Um Aufnahmen abzuspielen, installieren Sie eines der Pakete pipewire-bin, pulseaudio-utils, alsa-utils und ffmpeg.</translation>
  </message>
  <message id="toneNothingToPlay">
   <source>This sound is of a kind that cannot be played here.</source>
   <translation type="unfinished">Ein Klang dieser Art lässt sich hier nicht abspielen.</translation>
  </message>
  <message id="toneNotPrepared">
   <source>The sound could not be made ready for playing: %1</source>
   <translation type="unfinished">Der Klang ließ sich nicht zum Abspielen vorbereiten: %1</translation>
  </message>
  <message id="tonePlayerFailed">
   <source>%1 could not play it: %2</source>
   <translation type="unfinished">%1 konnte ihn nicht abspielen: %2</translation>
  </message>
  <message id="tonePlayerSilent">
   <source>%1 could not play it and did not say why.</source>
   <translation type="unfinished">%1 konnte ihn nicht abspielen und nannte keinen Grund.</translation>
  </message>
  <message id="commandConvertTone">
   <source>Convert for the Handset...</source>
   <translation type="unfinished">Für das Handy umwandeln …</translation>
  </message>
  <message id="toneNothing">
   <source>Select MIDI or WAV files to convert first.</source>
   <translation type="unfinished">Wählen Sie zuerst die MIDI- oder WAV-Dateien aus, die umgewandelt werden sollen.</translation>
  </message>
  <message id="toneConvertTitle">
   <source>Convert for the Handset</source>
   <translation type="unfinished">Für das Handy umwandeln</translation>
  </message>
  <message id="toneTable">
   <source>Files to convert</source>
   <translation type="unfinished">Umzuwandelnde Dateien</translation>
  </message>
  <message id="toneFile">
   <source>File</source>
   <translation type="unfinished">Datei</translation>
  </message>
  <message id="toneBecomes">
   <source>Becomes</source>
   <translation type="unfinished">Wird zu</translation>
  </message>
  <message id="toneSize">
   <source>Size</source>
   <translation type="unfinished">Größe</translation>
  </message>
  <message id="toneLength">
   <source>Duration</source>
   <translation type="unfinished">Dauer</translation>
  </message>
  <message id="toneNote">
   <source>Note</source>
   <translation type="unfinished">Hinweis</translation>
  </message>
  <message id="toneLooking">
   <source>Looking at it…</source>
   <translation type="unfinished">Wird angesehen…</translation>
  </message>
  <message id="toneSource">
   <source>Source:</source>
   <translation type="unfinished">Quelle:</translation>
  </message>
  <message id="toneTarget">
   <source>New file:</source>
   <translation type="unfinished">Neue Datei:</translation>
  </message>
  <message id="toneTargetSize">
   <source>Size:</source>
   <translation type="unfinished">Größe:</translation>
  </message>
  <message id="toneSizeOf">
   <source>%1 of %2 bytes</source>
   <translation type="unfinished">%1 von %2 Bytes</translation>
  </message>
  <message id="toneLossesName">
   <source>What is lost</source>
   <translation type="unfinished">Was verloren geht</translation>
  </message>
  <message id="toneHalve">
   <source>&amp;Halve recordings of 8,000 Hz to 4,000 Hz</source>
   <translation type="unfinished">Aufnahmen von 8.000 Hz auf 4.000 Hz &amp;halbieren</translation>
  </message>
  <message id="toneHalveSizes">
   <source>&amp;Halve to 4,000 Hz: %1 instead of %2</source>
   <translation type="unfinished">Auf 4.000 Hz &amp;halbieren: %1 statt %2</translation>
  </message>
  <message id="toneHalveTip">
   <source>Half the size, and a duller sound</source>
   <translation type="unfinished">Halb so groß, und dumpfer</translation>
  </message>
  <message id="toneConvert" numerus="yes">
   <source>Convert %1 Files</source>
   <translation type="unfinished">
    <numerusform>%1 Datei umwandeln</numerusform>
    <numerusform>%1 Dateien umwandeln</numerusform>
   </translation>
  </message>
  <message id="toneConvertAnyway" numerus="yes">
   <source>Convert %1 Files Anyway</source>
   <translation type="unfinished">
    <numerusform>%1 Datei trotzdem umwandeln</numerusform>
    <numerusform>%1 Dateien trotzdem umwandeln</numerusform>
   </translation>
  </message>
  <message id="toneNoteGood">
   <source>Nothing is lost</source>
   <translation type="unfinished">Nichts geht verloren</translation>
  </message>
  <message id="toneNoteLossy">
   <source>Loses something</source>
   <translation type="unfinished">Verliert etwas</translation>
  </message>
  <message id="toneNoteTooLong">
   <source>Too large</source>
   <translation type="unfinished">Zu groß</translation>
  </message>
  <message id="toneNoteRefused">
   <source>Cannot be converted</source>
   <translation type="unfinished">Lässt sich nicht umwandeln</translation>
  </message>
  <message id="tonePlanning" numerus="yes">
   <source>Looking at %1 files…</source>
   <translation type="unfinished">
    <numerusform>%1 Datei wird angesehen…</numerusform>
    <numerusform>%1 Dateien werden angesehen…</numerusform>
   </translation>
  </message>
  <message id="toneNone">
   <source>Nothing of this can be converted.</source>
   <translation type="unfinished">Nichts davon lässt sich umwandeln.</translation>
  </message>
  <message id="toneTooLong" numerus="yes">
   <source>%1 of the new files are larger than the %2 bytes that the handset takes.</source>
   <translation type="unfinished">
    <numerusform>%1 neue Datei ist größer als die %2 Bytes, die das Handy nimmt.</numerusform>
    <numerusform>%1 der neuen Dateien sind größer als die %2 Bytes, die das Handy nimmt.</numerusform>
   </translation>
  </message>
  <message id="toneLossy">
   <source>Something of the sources is lost.</source>
   <translation type="unfinished">Etwas von den Quellen geht verloren.</translation>
  </message>
  <message id="toneGood">
   <source>Nothing is lost.</source>
   <translation type="unfinished">Nichts geht verloren.</translation>
  </message>
  <message id="toneLostDropped" numerus="yes">
   <source>%1 notes are left out, because more than %2 would sound at once.</source>
   <translation type="unfinished">
    <numerusform>%1 Note fällt weg, weil sonst mehr als %2 zugleich erklängen.</numerusform>
    <numerusform>%1 Noten fallen weg, weil sonst mehr als %2 zugleich erklängen.</numerusform>
   </translation>
  </message>
  <message id="toneLostShortened" numerus="yes">
   <source>%1 notes are shortened, because more than %2 would sound at once.</source>
   <translation type="unfinished">
    <numerusform>%1 Note wird gekürzt, weil sonst mehr als %2 zugleich erklängen.</numerusform>
    <numerusform>%1 Noten werden gekürzt, weil sonst mehr als %2 zugleich erklängen.</numerusform>
   </translation>
  </message>
  <message id="toneLostUnended" numerus="yes">
   <source>%1 notes have no end and last to the end of the tune.</source>
   <translation type="unfinished">
    <numerusform>%1 Note hat kein Ende und dauert bis zum Ende des Stücks.</numerusform>
    <numerusform>%1 Noten haben kein Ende und dauern bis zum Ende des Stücks.</numerusform>
   </translation>
  </message>
  <message id="toneLostTooLong" numerus="yes">
   <source>%1 notes are cut to their greatest length.</source>
   <translation type="unfinished">
    <numerusform>%1 Note wird auf die größte Länge gekürzt.</numerusform>
    <numerusform>%1 Noten werden auf die größte Länge gekürzt.</numerusform>
   </translation>
  </message>
  <message id="toneLostPressure" numerus="yes">
   <source>%1 changes of key pressure are ignored.</source>
   <translation type="unfinished">
    <numerusform>%1 Änderung des Tastendrucks wird übergangen.</numerusform>
    <numerusform>%1 Änderungen des Tastendrucks werden übergangen.</numerusform>
   </translation>
  </message>
  <message id="toneLostBank" numerus="yes">
   <source>%1 choices of special voices are ignored.</source>
   <translation type="unfinished">
    <numerusform>%1 Wahl einer besonderen Stimme wird übergangen.</numerusform>
    <numerusform>%1 Wahlen besonderer Stimmen werden übergangen.</numerusform>
   </translation>
  </message>
  <message id="toneLostKit" numerus="yes">
   <source>%1 choices of a drum kit are ignored.</source>
   <translation type="unfinished">
    <numerusform>%1 Wahl eines Schlagzeugs wird übergangen.</numerusform>
    <numerusform>%1 Wahlen eines Schlagzeugs werden übergangen.</numerusform>
   </translation>
  </message>
  <message id="toneLostParameter" numerus="yes">
   <source>%1 special settings of channels are ignored.</source>
   <translation type="unfinished">
    <numerusform>%1 besondere Einstellung eines Kanals wird übergangen.</numerusform>
    <numerusform>%1 besondere Einstellungen von Kanälen werden übergangen.</numerusform>
   </translation>
  </message>
  <message id="toneLostControl" numerus="yes">
   <source>%1 controls that the handset does not know are ignored.</source>
   <translation type="unfinished">
    <numerusform>%1 Regler, den das Handy nicht kennt, wird übergangen.</numerusform>
    <numerusform>%1 Regler, die das Handy nicht kennt, werden übergangen.</numerusform>
   </translation>
  </message>
  <message id="toneLostExclusive" numerus="yes">
   <source>%1 messages for one make of instrument are ignored.</source>
   <translation type="unfinished">
    <numerusform>%1 Nachricht an Instrumente eines Herstellers wird übergangen.</numerusform>
    <numerusform>%1 Nachrichten an Instrumente eines Herstellers werden übergangen.</numerusform>
   </translation>
  </message>
  <message id="toneLostTempo" numerus="yes">
   <source>%1 changes of tempo make no sense and are ignored.</source>
   <translation type="unfinished">
    <numerusform>%1 Tempowechsel ohne Sinn wird übergangen.</numerusform>
    <numerusform>%1 Tempowechsel ohne Sinn werden übergangen.</numerusform>
   </translation>
  </message>
  <message id="toneLostAfterEnd" numerus="yes">
   <source>%1 events after 24 hours are left out.</source>
   <translation type="unfinished">
    <numerusform>%1 Ereignis nach 24 Stunden fällt weg.</numerusform>
    <numerusform>%1 Ereignisse nach 24 Stunden fallen weg.</numerusform>
   </translation>
  </message>
  <message id="toneLostTracks" numerus="yes">
   <source>%1 tracks are damaged and break off.</source>
   <translation type="unfinished">
    <numerusform>%1 Spur ist beschädigt und bricht ab.</numerusform>
    <numerusform>%1 Spuren sind beschädigt und brechen ab.</numerusform>
   </translation>
  </message>
  <message id="toneLostSongs" numerus="yes">
   <source>%1 further songs of the file are left out.</source>
   <translation type="unfinished">
    <numerusform>%1 weiteres Stück der Datei fällt weg.</numerusform>
    <numerusform>%1 weitere Stücke der Datei fallen weg.</numerusform>
   </translation>
  </message>
  <message id="toneLostRate">
   <source>Every second sample is left out: the sound becomes duller.</source>
   <translation type="unfinished">Jeder zweite Abtastwert fällt weg: Es klingt dumpfer.</translation>
  </message>
  <message id="toneLostFine">
   <source>The recording is stored with 4 bits a sample: it sounds somewhat rougher.</source>
   <translation type="unfinished">Die Aufnahme wird mit 4 Bit je Abtastwert gespeichert: Sie klingt etwas rauer.</translation>
  </message>
  <message id="toneNotesUnused">
   <source>The notes were not adapted to the handset first: %1</source>
   <translation type="unfinished">Die Noten wurden nicht erst an das Handy angepasst: %1</translation>
  </message>
  <message id="toneNotesFailed">
   <source>The notes could not be adapted to the handset first.</source>
   <translation type="unfinished">Die Noten ließen sich nicht erst an das Handy anpassen.</translation>
  </message>
  <message id="toneMustBe">
   <source>A recording must have 16 bits, one channel, and 4,000 or 8,000 Hz. This one has %1.</source>
   <translation type="unfinished">Eine Aufnahme muss 16 Bit, einen Kanal und 4.000 oder 8.000 Hz haben. Diese hat %1.</translation>
  </message>
  <message id="toneEmpty">
   <source>There is no sound in it.</source>
   <translation type="unfinished">Es ist kein Klang darin.</translation>
  </message>
  <message id="toneTooLongTrack">
   <source>The recording is too long for a ring tone.</source>
   <translation type="unfinished">Die Aufnahme ist zu lang für einen Klingelton.</translation>
  </message>
  <message id="toneNotConverted">
   <source>%1</source>
   <translation type="unfinished">%1</translation>
  </message>
  <message id="toneMaking" numerus="yes">
   <source>Converting %1 files for the handset</source>
   <translation type="unfinished">
    <numerusform>%1 Datei wird für das Handy umgewandelt</numerusform>
    <numerusform>%1 Dateien werden für das Handy umgewandelt</numerusform>
   </translation>
  </message>
  <message id="toneNotMade" numerus="yes">
   <source>%1 files could not be converted</source>
   <translation type="unfinished">
    <numerusform>%1 Datei ließ sich nicht umwandeln</numerusform>
    <numerusform>%1 Dateien ließen sich nicht umwandeln</numerusform>
   </translation>
  </message>
  <message id="toneUndo" numerus="yes">
   <source>Undo Conversion of %1 Items</source>
   <translation type="unfinished">
    <numerusform>Umwandeln von %1 Element rückgängig machen</numerusform>
    <numerusform>Umwandeln von %1 Elementen rückgängig machen</numerusform>
   </translation>
  </message>
  <message id="toneUndoName">
   <source>Undo Conversion of “%1”</source>
   <translation type="unfinished">Umwandeln von „%1“ rückgängig machen</translation>
  </message>
  <message id="viewerBack">
   <source>Back to the thumbnails</source>
   <translation type="unfinished">Zurück zu den Vorschaubildern</translation>
  </message>
  <message id="viewerPrevious">
   <source>Previous picture</source>
   <translation type="unfinished">Voriges Bild</translation>
  </message>
  <message id="viewerNext">
   <source>Next picture</source>
   <translation type="unfinished">Nächstes Bild</translation>
  </message>
  <message id="viewerZoomOut">
   <source>Smaller</source>
   <translation type="unfinished">Kleiner</translation>
  </message>
  <message id="viewerZoomIn">
   <source>Larger</source>
   <translation type="unfinished">Größer</translation>
  </message>
  <message id="viewerWhole">
   <source>Whole picture</source>
   <translation type="unfinished">Ganzes Bild</translation>
  </message>
  <message id="viewerPixels">
   <source>Actual pixels</source>
   <translation type="unfinished">Tatsächliche Pixel</translation>
  </message>
  <message id="viewerFullScreen">
   <source>Full screen</source>
   <translation type="unfinished">Vollbild</translation>
  </message>
  <message id="viewerLeaveFullScreen">
   <source>Leave full screen</source>
   <translation type="unfinished">Vollbild verlassen</translation>
  </message>
  <message id="viewerPlay">
   <source>Play the clip</source>
   <translation type="unfinished">Video abspielen</translation>
  </message>
  <message id="viewerTip">
   <source>%1 (%2)</source>
   <translation type="unfinished">%1 (%2)</translation>
  </message>
  <message id="viewerPosition">
   <source>%1 of %2</source>
   <translation type="unfinished">%1 von %2</translation>
  </message>
  <message id="viewerSize">
   <source>%1 × %2</source>
   <translation type="unfinished">%1 × %2</translation>
  </message>
  <message id="viewerZoom">
   <source>%1 %</source>
   <translation type="unfinished">%1 %</translation>
  </message>
  <message id="viewerFewerPixels">
   <source>shown with fewer pixels</source>
   <translation type="unfinished">mit weniger Pixeln gezeigt</translation>
  </message>
  <message id="viewerName">
   <source>%1, %2</source>
   <translation type="unfinished">%1, %2</translation>
  </message>
  <message id="viewerClipName">
   <source>%1, clip, %2</source>
   <translation type="unfinished">%1, Video, %2</translation>
  </message>
  <message id="viewerBrokenName">
   <source>%1, cannot be shown, %2</source>
   <translation type="unfinished">%1, kann nicht gezeigt werden, %2</translation>
  </message>
  <message id="viewerBroken">
   <source>This picture cannot be shown</source>
   <translation type="unfinished">Dieses Bild kann nicht gezeigt werden</translation>
  </message>
  <message id="viewerBrokenClip">
   <source>There is no picture of this clip</source>
   <translation type="unfinished">Von diesem Video gibt es kein Bild</translation>
  </message>
  <message id="viewerShow">
   <source>Slide show</source>
   <translation type="unfinished">Diaschau</translation>
  </message>
  <message id="viewerShowPaused">
   <source>Paused</source>
   <translation type="unfinished">Angehalten</translation>
  </message>
  <message id="viewerShowRuns">
   <source>A slide show is running</source>
   <translation type="unfinished">Eine Diaschau läuft</translation>
  </message>
  <message id="watchNotFollowed">
   <source>Changes are not followed</source>
   <translation type="unfinished">Änderungen werden nicht verfolgt</translation>
  </message>
  <message id="watchNotFollowedTip">
   <source>What other programs change in this folder does not show by itself. Press F5 to read it again.</source>
   <translation type="unfinished">Was andere Programme in diesem Ordner ändern, erscheint nicht von selbst. F5 liest ihn neu.</translation>
  </message>
 </context>
</TS>
