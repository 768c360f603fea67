<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
 <context>
  <name></name>
  <message id="listColumnHeadings">
   <source>Name|Size|Type|Modified</source>
   <translation type="unfinished">Name|Größe|Typ|Geändert</translation>
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
   <translation type="unfinished">Dateien finden (F3)</translation>
  </message>
  <message id="skinLeaveSearch">
   <source>Changing folders will cancel your search. Are you sure you want to change folders?</source>
   <translation type="unfinished">Ein anderer Ordner beendet die Suche. Wirklich den Ordner wechseln?</translation>
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
 </context>
</TS>
