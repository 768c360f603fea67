<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
 <context>
  <name></name>
  <message id="listColumnHeadings">
   <source>Name|Size|Type|Modified</source>
   <translation type="unfinished">الاسم|الحجم|النوع|تاريخ التعديل</translation>
  </message>
  <message id="listFiles">
   <source>Files</source>
   <translation type="unfinished">الملفات</translation>
  </message>
  <message id="listThumbnailSize">
   <source>Thumbnail size</source>
   <translation type="unfinished">حجم الصور المصغرة</translation>
  </message>
  <message id="listReading">
   <source>Reading the folder...</source>
   <translation type="unfinished">جارٍ قراءة المجلد...</translation>
  </message>
  <message id="listFolderGone">
   <source>This folder is no longer there</source>
   <translation type="unfinished">لم يعد هذا المجلد موجودًا</translation>
  </message>
  <message id="listFolderForbidden">
   <source>You may not look into this folder</source>
   <translation type="unfinished">لا يُسمح لك بالاطلاع على هذا المجلد</translation>
  </message>
  <message id="listFolderEmpty">
   <source>This folder is empty</source>
   <translation type="unfinished">هذا المجلد فارغ</translation>
  </message>
  <message id="listNoPictures">
   <source>No pictures here</source>
   <translation type="unfinished">لا توجد صور هنا</translation>
  </message>
  <message id="listNoVideos">
   <source>No videos here</source>
   <translation type="unfinished">لا توجد مقاطع فيديو هنا</translation>
  </message>
  <message id="listOtherKinds">
   <source>Other kinds of files are shown with View, Filter, All Files.</source>
   <translation type="unfinished">تُعرض الأنواع الأخرى من الملفات عبر عرض، تصفية، كل الملفات.</translation>
  </message>
  <message id="kindFolder">
   <source>Folder</source>
   <translation type="unfinished">مجلد</translation>
  </message>
  <message id="kindPlainFile">
   <source>File</source>
   <translation type="unfinished">ملف</translation>
  </message>
  <message id="kindFile">
   <source>%1 file</source>
   <translation type="unfinished">ملف %1</translation>
  </message>
  <message id="kindPicture">
   <source>%1 picture</source>
   <translation type="unfinished">صورة %1</translation>
  </message>
  <message id="kindVideo">
   <source>%1 video</source>
   <translation type="unfinished">فيديو %1</translation>
  </message>
  <message id="kindSound">
   <source>%1 sound</source>
   <translation type="unfinished">صوت %1</translation>
  </message>
  <message id="tabDevice">
   <source>Device</source>
   <translation type="unfinished">الجهاز</translation>
  </message>
  <message id="tabFolder">
   <source>Folder</source>
   <translation type="unfinished">المجلد</translation>
  </message>
  <message id="tabSearch">
   <source>Search</source>
   <translation type="unfinished">بحث</translation>
  </message>
  <message id="placeFavouritesAndDevices">
   <source>Favourites and devices</source>
   <translation type="unfinished">المفضلة والأجهزة</translation>
  </message>
  <message id="placeFolders">
   <source>Folders</source>
   <translation type="unfinished">المجلدات</translation>
  </message>
  <message id="placeDevices">
   <source>Devices</source>
   <translation type="unfinished">الأجهزة</translation>
  </message>
  <message id="placeHome">
   <source>Home</source>
   <translation type="unfinished">المجلد الرئيسي</translation>
  </message>
  <message id="placeFileSystem">
   <source>File System</source>
   <translation type="unfinished">نظام الملفات</translation>
  </message>
  <message id="placeUp">
   <source>Up</source>
   <translation type="unfinished">أعلى</translation>
  </message>
  <message id="placeUpTip">
   <source>To the folder above (Alt+Up)</source>
   <translation type="unfinished">إلى المجلد الأعلى (Alt+Up)</translation>
  </message>
  <message id="searchNoneYet">
   <source>No search yet</source>
   <translation type="unfinished">لا يوجد بحث بعد</translation>
  </message>
  <message id="searchComesLater">
   <source>Searching by name, caption and date comes in a later version.</source>
   <translation type="unfinished">سيأتي البحث بالاسم والتعليق والتاريخ في إصدار لاحق.</translation>
  </message>
  <message id="skinTabs">
   <source>Places</source>
   <translation type="unfinished">الأماكن</translation>
  </message>
  <message id="skinTabDeviceTip">
   <source>Favourites and devices</source>
   <translation type="unfinished">المفضلة والأجهزة</translation>
  </message>
  <message id="skinTabFolderTip">
   <source>All folders of this computer</source>
   <translation type="unfinished">كل مجلدات هذا الحاسوب</translation>
  </message>
  <message id="skinTabSearchTip">
   <source>Find files (F3)</source>
   <translation type="unfinished">البحث عن الملفات (F3)</translation>
  </message>
  <message id="skinLeaveSearch">
   <source>Changing folders will cancel your search. Are you sure you want to change folders?</source>
   <translation type="unfinished">سيؤدي تغيير المجلد إلى إلغاء البحث. هل تريد تغيير المجلد؟</translation>
  </message>
  <message id="statusFiles" numerus="yes">
   <source>%1 files</source>
   <translation type="unfinished">
    <numerusform>%1 ملف</numerusform>
    <numerusform>ملف واحد</numerusform>
    <numerusform>ملفان</numerusform>
    <numerusform>%1 ملفات</numerusform>
    <numerusform>%1 ملفًا</numerusform>
    <numerusform>%1 ملف</numerusform>
   </translation>
  </message>
  <message id="statusFolders" numerus="yes">
   <source>%1 folders</source>
   <translation type="unfinished">
    <numerusform>%1 مجلد</numerusform>
    <numerusform>مجلد واحد</numerusform>
    <numerusform>مجلدان</numerusform>
    <numerusform>%1 مجلدات</numerusform>
    <numerusform>%1 مجلدًا</numerusform>
    <numerusform>%1 مجلد</numerusform>
   </translation>
  </message>
  <message id="statusFoldersAndFiles">
   <source>%1, %2</source>
   <translation type="unfinished">%1، %2</translation>
  </message>
  <message id="statusReading" numerus="yes">
   <source>Reading: %1 files</source>
   <translation type="unfinished">
    <numerusform>قُرئ: %1 ملف</numerusform>
    <numerusform>قُرئ: ملف واحد</numerusform>
    <numerusform>قُرئ: ملفان</numerusform>
    <numerusform>قُرئ: %1 ملفات</numerusform>
    <numerusform>قُرئ: %1 ملفًا</numerusform>
    <numerusform>قُرئ: %1 ملف</numerusform>
   </translation>
  </message>
  <message id="statusSelected">
   <source>%1 selected</source>
   <translation type="unfinished">تم تحديد %1</translation>
  </message>
  <message id="statusThumbnails">
   <source>Thumbnails</source>
   <translation type="unfinished">الصور المصغرة</translation>
  </message>
  <message id="statusThumbnailsLeft" numerus="yes">
   <source>%1 thumbnails left</source>
   <translation type="unfinished">
    <numerusform>بقيت %1 صورة مصغرة</numerusform>
    <numerusform>بقيت صورة مصغرة واحدة</numerusform>
    <numerusform>بقيت صورتان مصغرتان</numerusform>
    <numerusform>بقيت %1 صور مصغرة</numerusform>
    <numerusform>بقيت %1 صورة مصغرة</numerusform>
    <numerusform>بقيت %1 صورة مصغرة</numerusform>
   </translation>
  </message>
  <message id="statusOneByte">
   <source>1 byte</source>
   <translation type="unfinished">بايت واحد</translation>
  </message>
 </context>
</TS>
