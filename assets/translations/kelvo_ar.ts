<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
 <context>
  <name></name>
  <message id="cameraTitle">
   <source>Copying From the Camera</source>
   <translation type="unfinished">النسخ من الكاميرا</translation>
  </message>
  <message id="cameraLooking">
   <source>Looking for the camera...</source>
   <translation type="unfinished">جارٍ البحث عن الكاميرا...</translation>
  </message>
  <message id="cameraNotAvailable">
   <source>Camera is not available. Please try again.</source>
   <translation type="unfinished">الكاميرا غير متاحة. يرجى المحاولة مرة أخرى.</translation>
  </message>
  <message id="cameraNoPhoto">
   <source>There no photo in the camera.
Please check your camera.</source>
   <translation type="unfinished">لا توجد صور في الكاميرا.
يرجى التحقق من الكاميرا.</translation>
  </message>
  <message id="cameraCount">
   <source>Copying photo %1 of %2</source>
   <translation type="unfinished">نسخ الصورة %1 من %2</translation>
  </message>
  <message id="cameraDeleteAll">
   <source>All the photos in camera will be deleted.
Do you want to continue?</source>
   <translation type="unfinished">ستُحذف جميع الصور الموجودة في الكاميرا.
هل تريد المتابعة؟</translation>
  </message>
  <message id="cameraProgress">
   <source>Photos copied</source>
   <translation type="unfinished">الصور المنسوخة</translation>
  </message>
  <message id="cameraStop">
   <source>&amp;Stop</source>
   <translation type="unfinished">إي&amp;قاف</translation>
  </message>
  <message id="cameraStopping">
   <source>Stopping...</source>
   <translation type="unfinished">جارٍ الإيقاف...</translation>
  </message>
  <message id="cameraClose">
   <source>&amp;Close</source>
   <translation type="unfinished">إ&amp;غلاق</translation>
  </message>
  <message id="cameraStopped">
   <source>Stopped. The photos copied so far are in %1.</source>
   <translation type="unfinished">تم الإيقاف. الصور المنسوخة حتى الآن موجودة في %1.</translation>
  </message>
  <message id="cameraFailed">
   <source>A photo could not be copied: %1. The photos copied so far are in %2.</source>
   <translation type="unfinished">تعذر نسخ إحدى الصور: %1. الصور المنسوخة حتى الآن موجودة في %2.</translation>
  </message>
  <message id="cameraStoppedNothing">
   <source>Stopped. No photo was copied.</source>
   <translation type="unfinished">تم الإيقاف. لم تُنسخ أي صورة.</translation>
  </message>
  <message id="cameraFailedNothing">
   <source>No photo could be copied: %1.</source>
   <translation type="unfinished">تعذر نسخ أي صورة: %1.</translation>
  </message>
  <message id="cameraGone">
   <source>The camera is no longer there. The photos copied so far are in %1.</source>
   <translation type="unfinished">لم تعد الكاميرا موجودة. الصور المنسوخة حتى الآن موجودة في %1.</translation>
  </message>
  <message id="cameraGoneNothing">
   <source>The camera is no longer there. No photo was copied.</source>
   <translation type="unfinished">لم تعد الكاميرا موجودة. لم تُنسخ أي صورة.</translation>
  </message>
  <message id="cameraFull">
   <source>The disk is full. The photos copied so far are in %1.</source>
   <translation type="unfinished">القرص ممتلئ. الصور المنسوخة حتى الآن موجودة في %1.</translation>
  </message>
  <message id="cameraFullNothing">
   <source>The disk is full. No photo was copied to %1.</source>
   <translation type="unfinished">القرص ممتلئ. لم تُنسخ أي صورة إلى %1.</translation>
  </message>
  <message id="cameraNoFolder">
   <source>The folder %1 could not be made: %2.</source>
   <translation type="unfinished">تعذر إنشاء المجلد %1: %2.</translation>
  </message>
  <message id="cameraNoPlace">
   <source>There is no folder that could receive the photos.</source>
   <translation type="unfinished">لا يوجد مجلد يمكن أن يستقبل الصور.</translation>
  </message>
  <message id="cameraLeftOut" numerus="yes">
   <source>%1 files of the camera could not be read and were left out.</source>
   <translation type="unfinished">
    <numerusform>لم يُترك أي ملف.</numerusform>
    <numerusform>تعذرت قراءة ملف واحد من الكاميرا وتُرك.</numerusform>
    <numerusform>تعذرت قراءة ملفين من الكاميرا وتُركا.</numerusform>
    <numerusform>تعذرت قراءة %1 ملفات من الكاميرا وتُركت.</numerusform>
    <numerusform>تعذرت قراءة %1 ملفًا من الكاميرا وتُركت.</numerusform>
    <numerusform>تعذرت قراءة %1 ملف من الكاميرا وتُركت.</numerusform>
   </translation>
  </message>
  <message id="cameraKept">
   <source>Some photos could not be deleted from the camera.</source>
   <translation type="unfinished">تعذر حذف بعض الصور من الكاميرا.</translation>
  </message>
  <message id="cameraCopied" numerus="yes">
   <source>%1 photos were copied.</source>
   <translation type="unfinished">
    <numerusform>لم تُنسخ أي صورة.</numerusform>
    <numerusform>نُسخت صورة واحدة.</numerusform>
    <numerusform>نُسخت صورتان.</numerusform>
    <numerusform>نُسخت %1 صور.</numerusform>
    <numerusform>نُسخت %1 صورة.</numerusform>
    <numerusform>نُسخت %1 صورة.</numerusform>
   </translation>
  </message>
  <message id="captionStoring" numerus="yes">
   <source>Writing the captions of %1 photos</source>
   <translation type="unfinished">
    <numerusform>تُكتب شروح %1 صورة</numerusform>
    <numerusform>يُكتب شرح صورة واحدة</numerusform>
    <numerusform>يُكتب شرحا صورتين</numerusform>
    <numerusform>تُكتب شروح %1 صور</numerusform>
    <numerusform>تُكتب شروح %1 صورة</numerusform>
    <numerusform>تُكتب شروح %1 صورة</numerusform>
   </translation>
  </message>
  <message id="captionNotStored" numerus="yes">
   <source>The texts of %1 photos could not be stored.</source>
   <translation type="unfinished">
    <numerusform>تعذّر حفظ نصوص %1 صورة.</numerusform>
    <numerusform>تعذّر حفظ نصوص صورة واحدة.</numerusform>
    <numerusform>تعذّر حفظ نصوص صورتين.</numerusform>
    <numerusform>تعذّر حفظ نصوص %1 صور.</numerusform>
    <numerusform>تعذّر حفظ نصوص %1 صورة.</numerusform>
    <numerusform>تعذّر حفظ نصوص %1 صورة.</numerusform>
   </translation>
  </message>
  <message id="captionPage">
   <source>Caption</source>
   <translation type="unfinished">الشرح</translation>
  </message>
  <message id="captionName">
   <source>File &amp;name:</source>
   <translation type="unfinished">ا&amp;سم الملف:</translation>
  </message>
  <message id="captionText">
   <source>&amp;Caption:</source>
   <translation type="unfinished">ال&amp;شرح:</translation>
  </message>
  <message id="captionTextTip">
   <source>Captions given before are in the list</source>
   <translation type="unfinished">الشروح السابقة موجودة في القائمة</translation>
  </message>
  <message id="captionTimeStamp">
   <source>&amp;Time stamp:</source>
   <translation type="unfinished">ال&amp;طابع الزمني:</translation>
  </message>
  <message id="captionTimeStampTip">
   <source>Whether the photo carries a day</source>
   <translation type="unfinished">هل تحمل الصورة تاريخ يوم</translation>
  </message>
  <message id="captionDay">
   <source>Day of the time stamp</source>
   <translation type="unfinished">يوم الطابع الزمني</translation>
  </message>
  <message id="captionSecond">
   <source>&amp;Second text:</source>
   <translation type="unfinished">النص ال&amp;ثاني:</translation>
  </message>
  <message id="captionOtherStamp">
   <source>The time stamp is %1, which is no day. It stays unless you choose one.</source>
   <translation type="unfinished">الطابع الزمني هو %1، وهو ليس يومًا. يبقى كما هو ما لم تختر يومًا.</translation>
  </message>
  <message id="captionNone">
   <source>Only pictures and clips carry captions.</source>
   <translation type="unfinished">لا تحمل الشروح إلا الصور والمقاطع.</translation>
  </message>
  <message id="captionGives" numerus="yes">
   <source>The changes are for %1 files.</source>
   <translation type="unfinished">
    <numerusform>التغييرات تخص %1 ملف.</numerusform>
    <numerusform>التغييرات تخص ملفًا واحدًا.</numerusform>
    <numerusform>التغييرات تخص ملفين.</numerusform>
    <numerusform>التغييرات تخص %1 ملفات.</numerusform>
    <numerusform>التغييرات تخص %1 ملفًا.</numerusform>
    <numerusform>التغييرات تخص %1 ملف.</numerusform>
   </translation>
  </message>
  <message id="captionReplacesCaptions">
   <source>Replaces the captions of %1 of the %2 files.</source>
   <translation type="unfinished">يستبدل شروح %1 من %2 من الملفات.</translation>
  </message>
  <message id="captionRemovesCaptions">
   <source>Removes the captions of %1 of the %2 files.</source>
   <translation type="unfinished">يزيل شروح %1 من %2 من الملفات.</translation>
  </message>
  <message id="captionReplacesStamps">
   <source>Replaces the time stamps of %1 of the %2 files.</source>
   <translation type="unfinished">يستبدل الطوابع الزمنية لعدد %1 من %2 من الملفات.</translation>
  </message>
  <message id="captionRemovesStamps">
   <source>Removes the time stamps of %1 of the %2 files.</source>
   <translation type="unfinished">يزيل الطوابع الزمنية لعدد %1 من %2 من الملفات.</translation>
  </message>
  <message id="captionReplacesSeconds">
   <source>Replaces the second texts of %1 of the %2 files.</source>
   <translation type="unfinished">يستبدل النصوص الثانية لعدد %1 من %2 من الملفات.</translation>
  </message>
  <message id="captionRemovesSeconds">
   <source>Removes the second texts of %1 of the %2 files.</source>
   <translation type="unfinished">يزيل النصوص الثانية لعدد %1 من %2 من الملفات.</translation>
  </message>
  <message id="captionApply">
   <source>&amp;Apply</source>
   <translation type="unfinished">ت&amp;طبيق</translation>
  </message>
  <message id="captionApplyTip">
   <source>Store the changes (Ctrl+Enter)</source>
   <translation type="unfinished">تخزين التغييرات (Ctrl+Enter)</translation>
  </message>
  <message id="captionRevert">
   <source>&amp;Revert</source>
   <translation type="unfinished">ت&amp;راجع</translation>
  </message>
  <message id="captionRevertTip">
   <source>Show again what is stored</source>
   <translation type="unfinished">إظهار المخزن مرة أخرى</translation>
  </message>
  <message id="captionAskOne">
   <source>Store the changes to %1?</source>
   <translation type="unfinished">هل تريد تخزين التغييرات على %1؟</translation>
  </message>
  <message id="captionAskMany" numerus="yes">
   <source>Store the changes to %1 files?</source>
   <translation type="unfinished">
    <numerusform>هل تريد تخزين التغييرات على %1 ملف؟</numerusform>
    <numerusform>هل تريد تخزين التغييرات على ملف واحد؟</numerusform>
    <numerusform>هل تريد تخزين التغييرات على ملفين؟</numerusform>
    <numerusform>هل تريد تخزين التغييرات على %1 ملفات؟</numerusform>
    <numerusform>هل تريد تخزين التغييرات على %1 ملفًا؟</numerusform>
    <numerusform>هل تريد تخزين التغييرات على %1 ملف؟</numerusform>
   </translation>
  </message>
  <message id="captionStore">
   <source>&amp;Store</source>
   <translation type="unfinished">ت&amp;خزين</translation>
  </message>
  <message id="captionDiscard">
   <source>&amp;Discard</source>
   <translation type="unfinished">ت&amp;جاهل</translation>
  </message>
  <message id="propertiesTitle">
   <source>Properties of %1</source>
   <translation type="unfinished">خصائص %1</translation>
  </message>
  <message id="propertiesPages">
   <source>Pages</source>
   <translation type="unfinished">الصفحات</translation>
  </message>
  <message id="propertiesGeneral">
   <source>General</source>
   <translation type="unfinished">عام</translation>
  </message>
  <message id="propertiesName">
   <source>Name:</source>
   <translation type="unfinished">الاسم:</translation>
  </message>
  <message id="propertiesFolder">
   <source>Folder:</source>
   <translation type="unfinished">المجلد:</translation>
  </message>
  <message id="propertiesKind">
   <source>Kind:</source>
   <translation type="unfinished">النوع:</translation>
  </message>
  <message id="propertiesPixels">
   <source>Picture size:</source>
   <translation type="unfinished">أبعاد الصورة:</translation>
  </message>
  <message id="propertiesSize">
   <source>Size:</source>
   <translation type="unfinished">الحجم:</translation>
  </message>
  <message id="propertiesContents">
   <source>Contents:</source>
   <translation type="unfinished">المحتويات:</translation>
  </message>
  <message id="propertiesCreated">
   <source>Created:</source>
   <translation type="unfinished">تاريخ الإنشاء:</translation>
  </message>
  <message id="propertiesChanged">
   <source>Changed:</source>
   <translation type="unfinished">تاريخ التغيير:</translation>
  </message>
  <message id="propertiesWidthAndHeight">
   <source>%1 × %2 pixels</source>
   <translation type="unfinished">%1 × %2 بكسل</translation>
  </message>
  <message id="propertiesSizeAndBytes">
   <source>%1 (%2)</source>
   <translation type="unfinished">%1 (%2)</translation>
  </message>
  <message id="propertiesBytes" numerus="yes">
   <source>%1 bytes</source>
   <translation type="unfinished">
    <numerusform>%1 بايت</numerusform>
    <numerusform>بايت واحد</numerusform>
    <numerusform>بايتان</numerusform>
    <numerusform>%1 بايتات</numerusform>
    <numerusform>%1 بايتًا</numerusform>
    <numerusform>%1 بايت</numerusform>
   </translation>
  </message>
  <message id="propertiesSelected" numerus="yes">
   <source>%1 selected items</source>
   <translation type="unfinished">
    <numerusform>%1 عنصر محدد</numerusform>
    <numerusform>عنصر واحد محدد</numerusform>
    <numerusform>عنصران محددان</numerusform>
    <numerusform>%1 عناصر محددة</numerusform>
    <numerusform>%1 عنصرًا محددًا</numerusform>
    <numerusform>%1 عنصر محدد</numerusform>
   </translation>
  </message>
  <message id="propertiesSeveralFolders">
   <source>Several folders</source>
   <translation type="unfinished">مجلدات متعددة</translation>
  </message>
  <message id="propertiesCounting">
   <source>Still counting...</source>
   <translation type="unfinished">ما زال العد جاريًا...</translation>
  </message>
  <message id="propertiesUnreadable" numerus="yes">
   <source>%1 could not be read</source>
   <translation type="unfinished">
    <numerusform>تعذرت قراءة %1</numerusform>
    <numerusform>تعذرت قراءة عنصر واحد</numerusform>
    <numerusform>تعذرت قراءة عنصرين</numerusform>
    <numerusform>تعذرت قراءة %1</numerusform>
    <numerusform>تعذرت قراءة %1</numerusform>
    <numerusform>تعذرت قراءة %1</numerusform>
   </translation>
  </message>
  <message id="propertiesFromTo">
   <source>%1 to %2</source>
   <translation type="unfinished">من %1 إلى %2</translation>
  </message>
  <message id="propertiesGone">
   <source>It is no longer there</source>
   <translation type="unfinished">لم يعد موجودًا</translation>
  </message>
  <message id="optionsTitle">
   <source>Options</source>
   <translation type="unfinished">خيارات</translation>
  </message>
  <message id="optionsLeftPhotos">
   <source>Photos on the camera, once they are copied</source>
   <translation type="unfinished">الصور على الكاميرا بعد نسخها</translation>
  </message>
  <message id="optionsAsk">
   <source>&amp;Ask what to do</source>
   <translation type="unfinished">ا&amp;سأل ما العمل</translation>
  </message>
  <message id="optionsKeep">
   <source>&amp;Keep them on the camera</source>
   <translation type="unfinished">أب&amp;قها على الكاميرا</translation>
  </message>
  <message id="optionsDelete">
   <source>&amp;Delete them from the camera</source>
   <translation type="unfinished">ا&amp;حذفها من الكاميرا</translation>
  </message>
  <message id="optionsPort">
   <source>Port of the handset</source>
   <translation type="unfinished">منفذ الهاتف</translation>
  </message>
  <message id="optionsSearch">
   <source>Search by number or name</source>
   <translation type="unfinished">ابحث بالرقم أو بالاسم</translation>
  </message>
  <message id="optionsOnlyPresent">
   <source>&amp;Only ports with something behind them</source>
   <translation type="unfinished">المنافذ التي خلفها شيء &amp;فقط</translation>
  </message>
  <message id="optionsPortWith">
   <source>%1: %2</source>
   <translation type="unfinished">%1: %2</translation>
  </message>
  <message id="optionsPortAway">
   <source>%1: %2 (not connected)</source>
   <translation type="unfinished">%1: %2 (غير متصل)</translation>
  </message>
  <message id="optionsNamed">
   <source>%1, %2</source>
   <translation type="unfinished">%1، %2</translation>
  </message>
  <message id="optionsNoPort">
   <source>No port is chosen. Connect the handset's cable or adapter, open this window again and choose it here.</source>
   <translation type="unfinished">لم يُختر أي منفذ. صِل كبل الهاتف أو المحوّل، ثم افتح هذه النافذة مجددًا واختره هنا.</translation>
  </message>
  <message id="optionsPortReady">
   <source>The handset is looked for at this port.</source>
   <translation type="unfinished">يُبحث عن الهاتف على هذا المنفذ.</translation>
  </message>
  <message id="optionsPortMissing">
   <source>Nothing is connected at this port now.</source>
   <translation type="unfinished">لا شيء متصل بهذا المنفذ الآن.</translation>
  </message>
  <message id="optionsPortNew">
   <source>This adapter keeps the number from now on, whatever else is plugged in.</source>
   <translation type="unfinished">يحتفظ هذا المحوّل بالرقم من الآن فصاعدًا، أيًا كان المتصل سواه.</translation>
  </message>
  <message id="optionsNotSaved">
   <source>The options could not be saved. Your settings folder may be full or protected against changes.</source>
   <translation type="unfinished">تعذر حفظ الخيارات. قد يكون مجلد إعداداتك ممتلئًا أو محميًا من التغيير.</translation>
  </message>
  <message id="sourceTitle">
   <source>Select Source</source>
   <translation type="unfinished">اختيار المصدر</translation>
  </message>
  <message id="sourceLooking">
   <source>Looking for scanners and cameras...</source>
   <translation type="unfinished">جارٍ البحث عن ماسحات وكاميرات...</translation>
  </message>
  <message id="sourceChoose">
   <source>Pictures are acquired from:</source>
   <translation type="unfinished">تُجلب الصور من:</translation>
  </message>
  <message id="sourceNone">
   <source>No scanner or camera was found. Switch it on, connect it, and open this window again.</source>
   <translation type="unfinished">لم يُعثر على ماسح ضوئي ولا كاميرا. شغّل الجهاز وصِله ثم افتح هذه النافذة مجددًا.</translation>
  </message>
  <message id="sourceCannotOpen">
   <source>An error occurred while trying to open TWAIN Data Source.</source>
   <translation type="unfinished">حدث خطأ أثناء محاولة فتح مصدر بيانات TWAIN.</translation>
  </message>
  <message id="sourceCannotOpenWhy">
   <source>Scanners are reached through SANE, which is not installed or does not start.</source>
   <translation type="unfinished">الوصول إلى الماسحات يتم عبر SANE، وهو غير مثبت أو لا يعمل.</translation>
  </message>
  <message id="commandRename">
   <source>Rename...</source>
   <translation type="unfinished">إعادة تسمية...</translation>
  </message>
  <message id="commandNewFolder">
   <source>New Folder...</source>
   <translation type="unfinished">مجلد جديد...</translation>
  </message>
  <message id="filesOpen">
   <source>&amp;Open</source>
   <translation type="unfinished">&amp;فتح</translation>
  </message>
  <message id="filesOpenWith">
   <source>Open &amp;With</source>
   <translation type="unfinished">فتح &amp;بواسطة</translation>
  </message>
  <message id="filesOpenWithNone">
   <source>No program is known for this kind of file</source>
   <translation type="unfinished">لا يُعرف برنامج لهذا النوع من الملفات</translation>
  </message>
  <message id="filesDeleteForGood">
   <source>Delete for &amp;Good</source>
   <translation type="unfinished">حذف &amp;نهائي</translation>
  </message>
  <message id="filesUndo">
   <source>Undo</source>
   <translation type="unfinished">تراجع</translation>
  </message>
  <message id="filesUndoCopyName">
   <source>Undo Copy of “%1”</source>
   <translation type="unfinished">التراجع عن نسخ «%1»</translation>
  </message>
  <message id="filesUndoMoveName">
   <source>Undo Move of “%1”</source>
   <translation type="unfinished">التراجع عن نقل «%1»</translation>
  </message>
  <message id="filesUndoDeleteName">
   <source>Undo Delete of “%1”</source>
   <translation type="unfinished">التراجع عن حذف «%1»</translation>
  </message>
  <message id="filesUndoRenameName">
   <source>Undo Rename of “%1”</source>
   <translation type="unfinished">التراجع عن تسمية «%1»</translation>
  </message>
  <message id="filesUndoFolderName">
   <source>Undo New Folder “%1”</source>
   <translation type="unfinished">التراجع عن المجلد الجديد «%1»</translation>
  </message>
  <message id="filesUndoPasteName">
   <source>Undo Paste of “%1”</source>
   <translation type="unfinished">التراجع عن لصق «%1»</translation>
  </message>
  <message id="filesUndoCopy" numerus="yes">
   <source>Undo Copy of %1 Items</source>
   <translation type="unfinished">
    <numerusform>التراجع عن نسخ %1 عنصر</numerusform>
    <numerusform>التراجع عن نسخ عنصر واحد</numerusform>
    <numerusform>التراجع عن نسخ عنصرين</numerusform>
    <numerusform>التراجع عن نسخ %1 عناصر</numerusform>
    <numerusform>التراجع عن نسخ %1 عنصرًا</numerusform>
    <numerusform>التراجع عن نسخ %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="filesUndoMove" numerus="yes">
   <source>Undo Move of %1 Items</source>
   <translation type="unfinished">
    <numerusform>التراجع عن نقل %1 عنصر</numerusform>
    <numerusform>التراجع عن نقل عنصر واحد</numerusform>
    <numerusform>التراجع عن نقل عنصرين</numerusform>
    <numerusform>التراجع عن نقل %1 عناصر</numerusform>
    <numerusform>التراجع عن نقل %1 عنصرًا</numerusform>
    <numerusform>التراجع عن نقل %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="filesUndoRename" numerus="yes">
   <source>Undo Rename of %1 Items</source>
   <translation type="unfinished">
    <numerusform>التراجع عن إعادة تسمية %1 عنصر</numerusform>
    <numerusform>التراجع عن إعادة تسمية عنصر واحد</numerusform>
    <numerusform>التراجع عن إعادة تسمية عنصرين</numerusform>
    <numerusform>التراجع عن إعادة تسمية %1 عناصر</numerusform>
    <numerusform>التراجع عن إعادة تسمية %1 عنصرًا</numerusform>
    <numerusform>التراجع عن إعادة تسمية %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="filesUndoDelete" numerus="yes">
   <source>Undo Delete of %1 Items</source>
   <translation type="unfinished">
    <numerusform>التراجع عن حذف %1 عنصر</numerusform>
    <numerusform>التراجع عن حذف عنصر واحد</numerusform>
    <numerusform>التراجع عن حذف عنصرين</numerusform>
    <numerusform>التراجع عن حذف %1 عناصر</numerusform>
    <numerusform>التراجع عن حذف %1 عنصرًا</numerusform>
    <numerusform>التراجع عن حذف %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="filesCopying" numerus="yes">
   <source>Copying %1 items</source>
   <translation type="unfinished">
    <numerusform>جارٍ نسخ %1 عنصر</numerusform>
    <numerusform>جارٍ نسخ عنصر واحد</numerusform>
    <numerusform>جارٍ نسخ عنصرين</numerusform>
    <numerusform>جارٍ نسخ %1 عناصر</numerusform>
    <numerusform>جارٍ نسخ %1 عنصرًا</numerusform>
    <numerusform>جارٍ نسخ %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="filesMoving" numerus="yes">
   <source>Moving %1 items</source>
   <translation type="unfinished">
    <numerusform>جارٍ نقل %1 عنصر</numerusform>
    <numerusform>جارٍ نقل عنصر واحد</numerusform>
    <numerusform>جارٍ نقل عنصرين</numerusform>
    <numerusform>جارٍ نقل %1 عناصر</numerusform>
    <numerusform>جارٍ نقل %1 عنصرًا</numerusform>
    <numerusform>جارٍ نقل %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="filesTrashing" numerus="yes">
   <source>Moving %1 items to the trash</source>
   <translation type="unfinished">
    <numerusform>جارٍ نقل %1 عنصر إلى المهملات</numerusform>
    <numerusform>جارٍ نقل عنصر واحد إلى المهملات</numerusform>
    <numerusform>جارٍ نقل عنصرين إلى المهملات</numerusform>
    <numerusform>جارٍ نقل %1 عناصر إلى المهملات</numerusform>
    <numerusform>جارٍ نقل %1 عنصرًا إلى المهملات</numerusform>
    <numerusform>جارٍ نقل %1 عنصر إلى المهملات</numerusform>
   </translation>
  </message>
  <message id="filesRemoving" numerus="yes">
   <source>Deleting %1 items</source>
   <translation type="unfinished">
    <numerusform>جارٍ حذف %1 عنصر</numerusform>
    <numerusform>جارٍ حذف عنصر واحد</numerusform>
    <numerusform>جارٍ حذف عنصرين</numerusform>
    <numerusform>جارٍ حذف %1 عناصر</numerusform>
    <numerusform>جارٍ حذف %1 عنصرًا</numerusform>
    <numerusform>جارٍ حذف %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="filesRenaming">
   <source>Renaming</source>
   <translation type="unfinished">جارٍ إعادة التسمية</translation>
  </message>
  <message id="filesMakingFolder">
   <source>Making a folder</source>
   <translation type="unfinished">جارٍ إنشاء مجلد</translation>
  </message>
  <message id="filesMakingFile">
   <source>Saving a picture</source>
   <translation type="unfinished">جارٍ حفظ صورة</translation>
  </message>
  <message id="filesRenamingAll" numerus="yes">
   <source>Renaming %1 files</source>
   <translation type="unfinished">
    <numerusform>تُعاد تسمية %1 ملف</numerusform>
    <numerusform>تُعاد تسمية ملف واحد</numerusform>
    <numerusform>تُعاد تسمية ملفين</numerusform>
    <numerusform>تُعاد تسمية %1 ملفات</numerusform>
    <numerusform>تُعاد تسمية %1 ملفًا</numerusform>
    <numerusform>تُعاد تسمية %1 ملف</numerusform>
   </translation>
  </message>
  <message id="filesUndoing" numerus="yes">
   <source>Taking back %1 changes</source>
   <translation type="unfinished">
    <numerusform>جارٍ التراجع عن %1 تغيير</numerusform>
    <numerusform>جارٍ التراجع عن تغيير واحد</numerusform>
    <numerusform>جارٍ التراجع عن تغييرين</numerusform>
    <numerusform>جارٍ التراجع عن %1 تغييرات</numerusform>
    <numerusform>جارٍ التراجع عن %1 تغييرًا</numerusform>
    <numerusform>جارٍ التراجع عن %1 تغيير</numerusform>
   </translation>
  </message>
  <message id="filesWaiting" numerus="yes">
   <source>%1 more jobs are waiting</source>
   <translation type="unfinished">
    <numerusform>%1 مهمة أخرى تنتظر</numerusform>
    <numerusform>مهمة أخرى واحدة تنتظر</numerusform>
    <numerusform>مهمتان أخريان تنتظران</numerusform>
    <numerusform>%1 مهام أخرى تنتظر</numerusform>
    <numerusform>%1 مهمة أخرى تنتظر</numerusform>
    <numerusform>%1 مهمة أخرى تنتظر</numerusform>
   </translation>
  </message>
  <message id="filesProgress">
   <source>Progress</source>
   <translation type="unfinished">التقدم</translation>
  </message>
  <message id="filesCancel">
   <source>Cancel</source>
   <translation type="unfinished">إلغاء</translation>
  </message>
  <message id="filesCancelling">
   <source>Stopping...</source>
   <translation type="unfinished">جارٍ الإيقاف...</translation>
  </message>
  <message id="filesClashTitle">
   <source>Name Taken</source>
   <translation type="unfinished">الاسم مستخدم</translation>
  </message>
  <message id="filesClashFile">
   <source>“%1” is already in “%2”.</source>
   <translation type="unfinished">«%1» موجود بالفعل في «%2».</translation>
  </message>
  <message id="filesClashFolder">
   <source>A folder “%1” is already in “%2”.</source>
   <translation type="unfinished">يوجد مجلد باسم «%1» في «%2».</translation>
  </message>
  <message id="filesClashThere">
   <source>There: %1</source>
   <translation type="unfinished">الموجود: %1</translation>
  </message>
  <message id="filesClashComing">
   <source>Coming: %1</source>
   <translation type="unfinished">القادم: %1</translation>
  </message>
  <message id="filesClashFacts">
   <source>%1, %2</source>
   <translation type="unfinished">%1، %2</translation>
  </message>
  <message id="filesClashForAll">
   <source>Do the &amp;same for all others</source>
   <translation type="unfinished">افعل ال&amp;مثل مع الباقي</translation>
  </message>
  <message id="filesClashSkip">
   <source>&amp;Skip</source>
   <translation type="unfinished">&amp;تخطٍ</translation>
  </message>
  <message id="filesClashReplace">
   <source>&amp;Replace</source>
   <translation type="unfinished">ا&amp;ستبدال</translation>
  </message>
  <message id="filesClashReplaceTip">
   <source>The one that is there goes to the trash</source>
   <translation type="unfinished">يذهب الموجود إلى المهملات</translation>
  </message>
  <message id="filesClashKeepBoth">
   <source>&amp;Keep Both</source>
   <translation type="unfinished">الا&amp;حتفاظ بالاثنين</translation>
  </message>
  <message id="filesClashKeepBothTip">
   <source>The one that comes gets a number</source>
   <translation type="unfinished">يُعطى القادم رقمًا</translation>
  </message>
  <message id="filesClashMerge">
   <source>&amp;Merge</source>
   <translation type="unfinished">&amp;دمج</translation>
  </message>
  <message id="filesClashMergeTip">
   <source>What both folders hold is put together; nothing is replaced without asking</source>
   <translation type="unfinished">تُجمع محتويات المجلدين، ولا يُستبدل شيء دون سؤال</translation>
  </message>
  <message id="filesAskTitle">
   <source>Delete for Good</source>
   <translation type="unfinished">حذف نهائي</translation>
  </message>
  <message id="filesAskRemoveName">
   <source>Delete “%1” for good?</source>
   <translation type="unfinished">أتريد حذف «%1» نهائيًا؟</translation>
  </message>
  <message id="filesAskRemove" numerus="yes">
   <source>Delete %1 items for good?</source>
   <translation type="unfinished">
    <numerusform>أتريد حذف %1 عنصر نهائيًا؟</numerusform>
    <numerusform>أتريد حذف عنصر واحد نهائيًا؟</numerusform>
    <numerusform>أتريد حذف عنصرين نهائيًا؟</numerusform>
    <numerusform>أتريد حذف %1 عناصر نهائيًا؟</numerusform>
    <numerusform>أتريد حذف %1 عنصرًا نهائيًا؟</numerusform>
    <numerusform>أتريد حذف %1 عنصر نهائيًا؟</numerusform>
   </translation>
  </message>
  <message id="filesAskRemoveMore">
   <source>This cannot be undone.</source>
   <translation type="unfinished">لا يمكن استعادتها.</translation>
  </message>
  <message id="filesAskNoTrash" numerus="yes">
   <source>%1 items cannot be put into the trash, for there is none on that medium. Delete them for good?</source>
   <translation type="unfinished">
    <numerusform>لا يمكن نقل %1 عنصر إلى المهملات، إذ لا مهملات على هذا الوسيط. أتريد الحذف نهائيًا؟</numerusform>
    <numerusform>لا يمكن نقل عنصر واحد إلى المهملات، إذ لا مهملات على هذا الوسيط. أتريد حذفه نهائيًا؟</numerusform>
    <numerusform>لا يمكن نقل عنصرين إلى المهملات، إذ لا مهملات على هذا الوسيط. أتريد حذفهما نهائيًا؟</numerusform>
    <numerusform>لا يمكن نقل %1 عناصر إلى المهملات، إذ لا مهملات على هذا الوسيط. أتريد حذفها نهائيًا؟</numerusform>
    <numerusform>لا يمكن نقل %1 عنصرًا إلى المهملات، إذ لا مهملات على هذا الوسيط. أتريد حذفها نهائيًا؟</numerusform>
    <numerusform>لا يمكن نقل %1 عنصر إلى المهملات، إذ لا مهملات على هذا الوسيط. أتريد حذفها نهائيًا؟</numerusform>
   </translation>
  </message>
  <message id="filesAskRemoveButton">
   <source>Delete</source>
   <translation type="unfinished">حذف</translation>
  </message>
  <message id="filesAskFolderTitle">
   <source>New Folder</source>
   <translation type="unfinished">مجلد جديد</translation>
  </message>
  <message id="filesAskFolderName">
   <source>Name of the new folder in “%1”:</source>
   <translation type="unfinished">اسم المجلد الجديد في «%1»:</translation>
  </message>
  <message id="filesNewFolderName">
   <source>New Folder</source>
   <translation type="unfinished">مجلد جديد</translation>
  </message>
  <message id="filesCreate">
   <source>Create</source>
   <translation type="unfinished">إنشاء</translation>
  </message>
  <message id="filesNameLabel">
   <source>New name</source>
   <translation type="unfinished">الاسم الجديد</translation>
  </message>
  <message id="filesNameEmpty">
   <source>A name is needed</source>
   <translation type="unfinished">لا بد من اسم</translation>
  </message>
  <message id="filesNameForbidden">
   <source>A name may not hold any of / \ : * ? " &lt; &gt; |</source>
   <translation type="unfinished">لا يجوز أن يحوي الاسم أيًا من / \ : * ? " &lt; &gt; |</translation>
  </message>
  <message id="filesNameReserved">
   <source>This name has a meaning of its own</source>
   <translation type="unfinished">لهذا الاسم معنى خاص</translation>
  </message>
  <message id="filesNameTooLong">
   <source>This name is too long</source>
   <translation type="unfinished">هذا الاسم طويل جدًا</translation>
  </message>
  <message id="filesNameTaken">
   <source>“%1” is already there</source>
   <translation type="unfinished">«%1» موجود بالفعل</translation>
  </message>
  <message id="filesReportTitle">
   <source>Not Everything Was Done</source>
   <translation type="unfinished">لم يتم كل شيء</translation>
  </message>
  <message id="filesNotCopied" numerus="yes">
   <source>%1 items could not be copied.</source>
   <translation type="unfinished">
    <numerusform>تعذر نسخ %1 عنصر.</numerusform>
    <numerusform>تعذر نسخ عنصر واحد.</numerusform>
    <numerusform>تعذر نسخ عنصرين.</numerusform>
    <numerusform>تعذر نسخ %1 عناصر.</numerusform>
    <numerusform>تعذر نسخ %1 عنصرًا.</numerusform>
    <numerusform>تعذر نسخ %1 عنصر.</numerusform>
   </translation>
  </message>
  <message id="filesNotMoved" numerus="yes">
   <source>%1 items could not be moved.</source>
   <translation type="unfinished">
    <numerusform>تعذر نقل %1 عنصر.</numerusform>
    <numerusform>تعذر نقل عنصر واحد.</numerusform>
    <numerusform>تعذر نقل عنصرين.</numerusform>
    <numerusform>تعذر نقل %1 عناصر.</numerusform>
    <numerusform>تعذر نقل %1 عنصرًا.</numerusform>
    <numerusform>تعذر نقل %1 عنصر.</numerusform>
   </translation>
  </message>
  <message id="filesNotTrashed" numerus="yes">
   <source>%1 items could not be moved to the trash.</source>
   <translation type="unfinished">
    <numerusform>تعذر نقل %1 عنصر إلى المهملات.</numerusform>
    <numerusform>تعذر نقل عنصر واحد إلى المهملات.</numerusform>
    <numerusform>تعذر نقل عنصرين إلى المهملات.</numerusform>
    <numerusform>تعذر نقل %1 عناصر إلى المهملات.</numerusform>
    <numerusform>تعذر نقل %1 عنصرًا إلى المهملات.</numerusform>
    <numerusform>تعذر نقل %1 عنصر إلى المهملات.</numerusform>
   </translation>
  </message>
  <message id="filesNotRemoved" numerus="yes">
   <source>%1 items could not be deleted.</source>
   <translation type="unfinished">
    <numerusform>تعذر حذف %1 عنصر.</numerusform>
    <numerusform>تعذر حذف عنصر واحد.</numerusform>
    <numerusform>تعذر حذف عنصرين.</numerusform>
    <numerusform>تعذر حذف %1 عناصر.</numerusform>
    <numerusform>تعذر حذف %1 عنصرًا.</numerusform>
    <numerusform>تعذر حذف %1 عنصر.</numerusform>
   </translation>
  </message>
  <message id="filesNotRenamed">
   <source>The new name could not be given.</source>
   <translation type="unfinished">تعذر إعطاء الاسم الجديد.</translation>
  </message>
  <message id="filesNotAllRenamed" numerus="yes">
   <source>%1 files could not be renamed.</source>
   <translation type="unfinished">
    <numerusform>تعذّرت إعادة تسمية %1 ملف.</numerusform>
    <numerusform>تعذّرت إعادة تسمية ملف واحد.</numerusform>
    <numerusform>تعذّرت إعادة تسمية ملفين.</numerusform>
    <numerusform>تعذّرت إعادة تسمية %1 ملفات.</numerusform>
    <numerusform>تعذّرت إعادة تسمية %1 ملفًا.</numerusform>
    <numerusform>تعذّرت إعادة تسمية %1 ملف.</numerusform>
   </translation>
  </message>
  <message id="filesNoFolderMade">
   <source>The folder could not be made.</source>
   <translation type="unfinished">تعذر إنشاء المجلد.</translation>
  </message>
  <message id="filesNoFileMade">
   <source>The picture could not be saved.</source>
   <translation type="unfinished">تعذر حفظ الصورة.</translation>
  </message>
  <message id="filesNotUndone" numerus="yes">
   <source>%1 changes could not be taken back.</source>
   <translation type="unfinished">
    <numerusform>تعذر التراجع عن %1 تغيير.</numerusform>
    <numerusform>تعذر التراجع عن تغيير واحد.</numerusform>
    <numerusform>تعذر التراجع عن تغييرين.</numerusform>
    <numerusform>تعذر التراجع عن %1 تغييرات.</numerusform>
    <numerusform>تعذر التراجع عن %1 تغييرًا.</numerusform>
    <numerusform>تعذر التراجع عن %1 تغيير.</numerusform>
   </translation>
  </message>
  <message id="filesWereDone">
   <source>Done: %1 of %2.</source>
   <translation type="unfinished">تم: %1 من %2.</translation>
  </message>
  <message id="filesWereSkipped">
   <source>Left out as you chose: %1.</source>
   <translation type="unfinished">تُرك كما اخترت: %1.</translation>
  </message>
  <message id="filesWasCancelled">
   <source>You stopped it.</source>
   <translation type="unfinished">لقد أوقفته.</translation>
  </message>
  <message id="filesProblemLine">
   <source>%1: %2</source>
   <translation type="unfinished">%1: %2</translation>
  </message>
  <message id="filesMoreProblems" numerus="yes">
   <source>and %1 more</source>
   <translation type="unfinished">
    <numerusform>و%1 آخر</numerusform>
    <numerusform>وواحد آخر</numerusform>
    <numerusform>واثنان آخران</numerusform>
    <numerusform>و%1 أخرى</numerusform>
    <numerusform>و%1 آخر</numerusform>
    <numerusform>و%1 آخر</numerusform>
   </translation>
  </message>
  <message id="filesBecauseMissing">
   <source>it is no longer there</source>
   <translation type="unfinished">لم يعد موجودًا</translation>
  </message>
  <message id="filesBecauseTaken">
   <source>its name is taken</source>
   <translation type="unfinished">اسمه مستخدم</translation>
  </message>
  <message id="filesBecauseItself">
   <source>it is there already</source>
   <translation type="unfinished">هو هناك بالفعل</translation>
  </message>
  <message id="filesBecauseIntoItself">
   <source>a folder can neither go into itself nor take the place of a folder that holds it</source>
   <translation type="unfinished">لا يمكن وضع مجلد في نفسه ولا مكان مجلد يحويه</translation>
  </message>
  <message id="filesBecauseForbidden">
   <source>you have no permission for this</source>
   <translation type="unfinished">لا يُسمح لك بذلك هنا</translation>
  </message>
  <message id="filesBecauseNoRoom">
   <source>there is not enough room</source>
   <translation type="unfinished">لا توجد مساحة كافية</translation>
  </message>
  <message id="filesBecauseBadName">
   <source>this medium takes no such name</source>
   <translation type="unfinished">هذا الوسيط لا يقبل اسمًا كهذا</translation>
  </message>
  <message id="filesBecauseNoTrash">
   <source>there is no trash on this medium</source>
   <translation type="unfinished">لا مهملات على هذا الوسيط</translation>
  </message>
  <message id="filesBecauseChanged">
   <source>it has changed since</source>
   <translation type="unfinished">تغير منذ ذلك الحين</translation>
  </message>
  <message id="filesDropCopy">
   <source>Copy to “%1”</source>
   <translation type="unfinished">نسخ إلى «%1»</translation>
  </message>
  <message id="filesDropMove">
   <source>Move to “%1”</source>
   <translation type="unfinished">نقل إلى «%1»</translation>
  </message>
  <message id="menuFile">
   <source>File</source>
   <translation type="unfinished">ملف</translation>
  </message>
  <message id="menuEdit">
   <source>Edit</source>
   <translation type="unfinished">تحرير</translation>
  </message>
  <message id="menuView">
   <source>View</source>
   <translation type="unfinished">عرض</translation>
  </message>
  <message id="menuThumbnailSize">
   <source>Thumbnail Size</source>
   <translation type="unfinished">حجم الصور المصغرة</translation>
  </message>
  <message id="menuFilter">
   <source>Filter</source>
   <translation type="unfinished">تصفية</translation>
  </message>
  <message id="menuSort">
   <source>Sort</source>
   <translation type="unfinished">فرز</translation>
  </message>
  <message id="menuTools">
   <source>Tools</source>
   <translation type="unfinished">أدوات</translation>
  </message>
  <message id="menuMobile">
   <source>Mobile</source>
   <translation type="unfinished">الهاتف</translation>
  </message>
  <message id="menuHelp">
   <source>Help</source>
   <translation type="unfinished">مساعدة</translation>
  </message>
  <message id="commandAcquire">
   <source>Acquire...</source>
   <translation type="unfinished">جلب صورة...</translation>
  </message>
  <message id="commandSelectSource">
   <source>Select Source...</source>
   <translation type="unfinished">اختيار المصدر...</translation>
  </message>
  <message id="commandCameraDownload">
   <source>Camera Download...</source>
   <translation type="unfinished">النسخ من الكاميرا...</translation>
  </message>
  <message id="commandPrint">
   <source>Print...</source>
   <translation type="unfinished">طباعة...</translation>
  </message>
  <message id="commandEMail">
   <source>E-mail...</source>
   <translation type="unfinished">بريد إلكتروني...</translation>
  </message>
  <message id="commandProperties">
   <source>Properties...</source>
   <translation type="unfinished">خصائص...</translation>
  </message>
  <message id="commandBackToTaskPanel">
   <source>Back to Task Panel</source>
   <translation type="unfinished">العودة إلى لوحة المهام</translation>
  </message>
  <message id="commandExit">
   <source>Exit</source>
   <translation type="unfinished">خروج</translation>
  </message>
  <message id="commandCopy">
   <source>Copy</source>
   <translation type="unfinished">نسخ</translation>
  </message>
  <message id="commandCut">
   <source>Cut</source>
   <translation type="unfinished">قص</translation>
  </message>
  <message id="commandPaste">
   <source>Paste</source>
   <translation type="unfinished">لصق</translation>
  </message>
  <message id="commandDelete">
   <source>Delete</source>
   <translation type="unfinished">حذف</translation>
  </message>
  <message id="commandSelectAll">
   <source>Select All</source>
   <translation type="unfinished">تحديد الكل</translation>
  </message>
  <message id="commandSelectNone">
   <source>Select None</source>
   <translation type="unfinished">إلغاء التحديد</translation>
  </message>
  <message id="commandInvertSelection">
   <source>Invert Selection</source>
   <translation type="unfinished">عكس التحديد</translation>
  </message>
  <message id="commandSearch">
   <source>Search...</source>
   <translation type="unfinished">بحث...</translation>
  </message>
  <message id="commandThumbnails">
   <source>Thumbnails</source>
   <translation type="unfinished">صور مصغرة</translation>
  </message>
  <message id="commandSmallIcons">
   <source>Small Icons</source>
   <translation type="unfinished">رموز صغيرة</translation>
  </message>
  <message id="commandList">
   <source>List</source>
   <translation type="unfinished">قائمة</translation>
  </message>
  <message id="commandDetails">
   <source>Details</source>
   <translation type="unfinished">تفاصيل</translation>
  </message>
  <message id="commandLarge">
   <source>Large</source>
   <translation type="unfinished">كبير</translation>
  </message>
  <message id="commandMedium">
   <source>Medium</source>
   <translation type="unfinished">متوسط</translation>
  </message>
  <message id="commandSmall">
   <source>Small</source>
   <translation type="unfinished">صغير</translation>
  </message>
  <message id="commandPhoto">
   <source>Photo</source>
   <translation type="unfinished">صور</translation>
  </message>
  <message id="commandVideo">
   <source>Video</source>
   <translation type="unfinished">فيديو</translation>
  </message>
  <message id="commandMedia">
   <source>Media</source>
   <translation type="unfinished">وسائط</translation>
  </message>
  <message id="commandAllFiles">
   <source>All Files</source>
   <translation type="unfinished">كل الملفات</translation>
  </message>
  <message id="commandIncludeFolder">
   <source>Include Folder</source>
   <translation type="unfinished">تضمين المجلدات</translation>
  </message>
  <message id="commandByName">
   <source>By Name</source>
   <translation type="unfinished">حسب الاسم</translation>
  </message>
  <message id="commandBySize">
   <source>By Size</source>
   <translation type="unfinished">حسب الحجم</translation>
  </message>
  <message id="commandByType">
   <source>By Type</source>
   <translation type="unfinished">حسب النوع</translation>
  </message>
  <message id="commandByModified">
   <source>By Modified</source>
   <translation type="unfinished">حسب تاريخ التعديل</translation>
  </message>
  <message id="commandByDateTaken">
   <source>By Date Taken</source>
   <translation type="unfinished">حسب تاريخ الالتقاط</translation>
  </message>
  <message id="commandAscending">
   <source>Ascending</source>
   <translation type="unfinished">تصاعدي</translation>
  </message>
  <message id="commandDescending">
   <source>Descending</source>
   <translation type="unfinished">تنازلي</translation>
  </message>
  <message id="commandDateTakenColumn">
   <source>Date Taken Column</source>
   <translation type="unfinished">عمود تاريخ الالتقاط</translation>
  </message>
  <message id="commandToolBar">
   <source>Tool Bar</source>
   <translation type="unfinished">شريط الأدوات</translation>
  </message>
  <message id="commandTaskPanel">
   <source>Task Panel</source>
   <translation type="unfinished">لوحة المهام</translation>
  </message>
  <message id="commandPhotoInfo">
   <source>Photo Information</source>
   <translation type="unfinished">معلومات الصورة</translation>
  </message>
  <message id="commandRefresh">
   <source>Refresh</source>
   <translation type="unfinished">تحديث</translation>
  </message>
  <message id="commandImageSize">
   <source>Image Size</source>
   <translation type="unfinished">حجم الصورة</translation>
  </message>
  <message id="commandPhotoTrim">
   <source>Photo Trim</source>
   <translation type="unfinished">قص الصورة</translation>
  </message>
  <message id="commandWhiteboardCleanUp">
   <source>Whiteboard Clean-up</source>
   <translation type="unfinished">تنظيف صورة السبورة</translation>
  </message>
  <message id="commandVideoTrim">
   <source>Video Trim</source>
   <translation type="unfinished">قص الفيديو</translation>
  </message>
  <message id="commandSlideShow">
   <source>Slide Show</source>
   <translation type="unfinished">عرض شرائح</translation>
  </message>
  <message id="commandScreenSaver">
   <source>Screen Saver</source>
   <translation type="unfinished">شاشة التوقف</translation>
  </message>
  <message id="commandScreenCapture">
   <source>Screen Capture</source>
   <translation type="unfinished">التقاط الشاشة</translation>
  </message>
  <message id="commandChangeTimeStamp">
   <source>Change Time Stamp</source>
   <translation type="unfinished">تغيير الطابع الزمني</translation>
  </message>
  <message id="commandUploadToPc">
   <source>Upload to PC</source>
   <translation type="unfinished">النقل إلى الحاسوب</translation>
  </message>
  <message id="commandDownloadToMobile">
   <source>Download to Mobile</source>
   <translation type="unfinished">النقل إلى الهاتف</translation>
  </message>
  <message id="commandMessageCenter">
   <source>Message Center</source>
   <translation type="unfinished">مركز الرسائل</translation>
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
   <translation type="unfinished">خيارات...</translation>
  </message>
  <message id="commandHelp">
   <source>Help</source>
   <translation type="unfinished">مساعدة</translation>
  </message>
  <message id="commandAbout">
   <source>About</source>
   <translation type="unfinished">حول</translation>
  </message>
  <message id="framePlugAndPlay">
   <source>A plug &amp; play device id found!</source>
   <translation type="unfinished">عُثر على معرّف جهاز للتوصيل والتشغيل!</translation>
  </message>
  <message id="missingMail">
   <source>Sending mail is not part of this version yet</source>
   <translation type="unfinished">إرسال البريد ليس جزءًا من هذا الإصدار بعد</translation>
  </message>
  <message id="missingEditors">
   <source>The image editors are not part of this version yet</source>
   <translation type="unfinished">محررات الصور ليست جزءًا من هذا الإصدار بعد</translation>
  </message>
  <message id="missingHandset">
   <source>Messages of the handset are not part of this version yet</source>
   <translation type="unfinished">رسائل الهاتف ليست جزءًا من هذا الإصدار بعد</translation>
  </message>
  <message id="missingScanner">
   <source>Taking pictures from a scanner is not part of this version yet</source>
   <translation type="unfinished">جلب الصور من الماسح ليس جزءًا من هذا الإصدار بعد</translation>
  </message>
  <message id="aboutTitle">
   <source>About</source>
   <translation type="unfinished">حول</translation>
  </message>
  <message id="aboutWhat">
   <source>A manager for photos and other media.</source>
   <translation type="unfinished">مدير للصور والوسائط الأخرى.</translation>
  </message>
  <message id="suiteLaunchMms">
   <source>Launch MMS</source>
   <translation type="unfinished">تشغيل MMS</translation>
  </message>
  <message id="suiteLaunchSms">
   <source>Launch SMS</source>
   <translation type="unfinished">تشغيل SMS</translation>
  </message>
  <message id="suitePimError">
   <source>Launch PIM Error</source>
   <translation type="unfinished">Launch PIM Error</translation>
  </message>
  <message id="suitePimWhy">
   <source>Contacts and calendar are kept by a part of the suite that is not installed.</source>
   <translation type="unfinished">جهات الاتصال والتقويم يديرها جزء من الحزمة غير مثبت.</translation>
  </message>
  <message id="suiteNoLauncher">
   <source>The suite's task panel is not installed.</source>
   <translation type="unfinished">لوحة مهام الحزمة غير مثبتة.</translation>
  </message>
  <message id="suiteNoPictures">
   <source>Select the pictures to print first.</source>
   <translation type="unfinished">حدد أولاً الصور المراد طباعتها.</translation>
  </message>
  <message id="suiteNoPrinter">
   <source>Printing needs the suite's print program, which is not installed.
Pictures can be printed with the program that opens them: Open With in the list's menu.</source>
   <translation type="unfinished">تحتاج الطباعة إلى برنامج الطباعة التابع للحزمة، وهو غير مثبت.
يمكن طباعة الصور بالبرنامج الذي يفتحها: «فتح باستخدام» في قائمة العناصر.</translation>
  </message>
  <message id="suiteListNotWritten">
   <source>The list of pictures for the print program could not be written: %1</source>
   <translation type="unfinished">تعذرت كتابة قائمة الصور لبرنامج الطباعة: %1</translation>
  </message>
  <message id="suiteNoTrimmer">
   <source>Trimming videos needs the suite's video program, which is not installed.</source>
   <translation type="unfinished">يحتاج قص مقاطع الفيديو إلى برنامج الفيديو التابع للحزمة، وهو غير مثبت.</translation>
  </message>
  <message id="suiteTrimNotWritten">
   <source>The video program's settings could not be written: %1</source>
   <translation type="unfinished">تعذرت كتابة إعدادات برنامج الفيديو: %1</translation>
  </message>
  <message id="suiteNoClips">
   <source>Don't support AVI and ASF format.</source>
   <translation type="unfinished">صيغتا AVI وASF غير مدعومتين هنا.</translation>
  </message>
  <message id="suiteWarning">
   <source>Warning</source>
   <translation type="unfinished">تحذير</translation>
  </message>
  <message id="screenSaverSet">
   <source>The screen saver shows these pictures from now on.</source>
   <translation type="unfinished">ستعرض شاشة التوقف هذه الصور من الآن فصاعدًا.</translation>
  </message>
  <message id="screenSaverNoPictures">
   <source>There are no pictures here. Select the pictures, or open the folder, that the screen saver is to show.</source>
   <translation type="unfinished">لا توجد صور هنا. حدد الصور أو افتح المجلد الذي ستعرضه شاشة التوقف.</translation>
  </message>
  <message id="screenSaverMissing">
   <source>No screen saver that shows pictures is installed: it needs the programs xscreensaver and glslideshow.
Their packages are usually called xscreensaver and xscreensaver-gl.</source>
   <translation type="unfinished">لا توجد شاشة توقف مثبتة تعرض الصور: يلزم البرنامجان xscreensaver وglslideshow.
عادةً ما تسمى حزمتاهما xscreensaver وxscreensaver-gl.</translation>
  </message>
  <message id="screenSaverNoScreen">
   <source>In a Wayland session the desktop alone decides what covers the screen, so there is no screen saver to set. It works in a session under X11.</source>
   <translation type="unfinished">في جلسة Wayland يقرر سطح المكتب وحده ما يغطي الشاشة، لذلك لا يمكن تعيين شاشة توقف. يعمل ذلك في جلسة X11.</translation>
  </message>
  <message id="screenSaverNotWritten">
   <source>The screen saver could not be set: %1</source>
   <translation type="unfinished">تعذر تعيين شاشة التوقف: %1</translation>
  </message>
  <message id="captureNothing">
   <source>There is no other window to capture.</source>
   <translation type="unfinished">لا توجد نافذة أخرى لالتقاطها.</translation>
  </message>
  <message id="captureNoFolder">
   <source>Choose a folder on the left first: captured pictures are saved there.</source>
   <translation type="unfinished">اختر أولاً مجلداً من الجهة الجانبية: تُحفظ الصور الملتقطة فيه.</translation>
  </message>
  <message id="captureNotSaved">
   <source>The picture could not be taken or saved.</source>
   <translation type="unfinished">تعذر التقاط الصورة أو حفظها.</translation>
  </message>
  <message id="propertiesNothing">
   <source>Select the files whose properties you want to see first.</source>
   <translation type="unfinished">حدد أولاً الملفات التي تريد رؤية خصائصها.</translation>
  </message>
  <message id="waitingQuestion">
   <source>This window waits until the print program has ended.</source>
   <translation type="unfinished">تنتظر هذه النافذة حتى ينتهي برنامج الطباعة.</translation>
  </message>
  <message id="waitingWait">
   <source>&amp;Wait</source>
   <translation type="unfinished">ا&amp;نتظار</translation>
  </message>
  <message id="waitingUse">
   <source>&amp;Use It Now</source>
   <translation type="unfinished">ا&amp;ستخدامها الآن</translation>
  </message>
  <message id="waitingClose">
   <source>&amp;Close It</source>
   <translation type="unfinished">إ&amp;غلاقها</translation>
  </message>
  <message id="suiteNoShow">
   <source>There are no pictures here to show.</source>
   <translation type="unfinished">لا توجد هنا صور لعرضها.</translation>
  </message>
  <message id="handsetNoHandset">
   <source>Fail to Communicate with Mobile Handset.</source>
   <translation type="unfinished">تعذّر الاتصال بالهاتف.</translation>
  </message>
  <message id="handsetNoSpace">
   <source>The storge space in not enough.</source>
   <translation type="unfinished">مساحة التخزين غير كافية.</translation>
  </message>
  <message id="handsetTransferFailed">
   <source>Upload failed .</source>
   <translation type="unfinished">فشل النقل.</translation>
  </message>
  <message id="handsetNoItem">
   <source>There is no item in Mobile handset.</source>
   <translation type="unfinished">لا يوجد شيء على الهاتف.</translation>
  </message>
  <message id="handsetBadDescriptor">
   <source>JAD file format is incorrect, cannot upload.</source>
   <translation type="unfinished">صيغة ملف JAD غير صحيحة، لا يمكن نقله.</translation>
  </message>
  <message id="handsetSuccessful">
   <source>Transfer Successfully.</source>
   <translation type="unfinished">تم النقل بنجاح.</translation>
  </message>
  <message id="handsetCancelled">
   <source>Transfer Cancel.</source>
   <translation type="unfinished">أُلغي النقل.</translation>
  </message>
  <message id="handsetCounter">
   <source>%1 / %2</source>
   <translation type="unfinished">%1 / %2</translation>
  </message>
  <message id="handsetMainWallpaper">
   <source>Main Wallpaper</source>
   <translation type="unfinished">الخلفية الرئيسية</translation>
  </message>
  <message id="handsetSubWallpaper">
   <source>Sub Wallpaper</source>
   <translation type="unfinished">الخلفية الثانوية</translation>
  </message>
  <message id="handsetMyAlbum">
   <source>My Album</source>
   <translation type="unfinished">ألبومي</translation>
  </message>
  <message id="handsetFrame">
   <source>Frame</source>
   <translation type="unfinished">إطارات</translation>
  </message>
  <message id="handsetRing">
   <source>Ring</source>
   <translation type="unfinished">نغمات</translation>
  </message>
  <message id="handsetAnimation">
   <source>Animation</source>
   <translation type="unfinished">رسوم متحركة</translation>
  </message>
  <message id="handsetJava">
   <source>Java</source>
   <translation type="unfinished">Java</translation>
  </message>
  <message id="handsetStart">
   <source>&amp;Start</source>
   <translation type="unfinished">ا&amp;بدأ</translation>
  </message>
  <message id="handsetStop">
   <source>S&amp;top</source>
   <translation type="unfinished">&amp;أوقف</translation>
  </message>
  <message id="handsetClose">
   <source>&amp;Close</source>
   <translation type="unfinished">أ&amp;غلق</translation>
  </message>
  <message id="handsetLooking">
   <source>Looking for the handset…</source>
   <translation type="unfinished">جارٍ البحث عن الهاتف…</translation>
  </message>
  <message id="handsetReadyModel">
   <source>%1 is connected.</source>
   <translation type="unfinished">%1 متصل.</translation>
  </message>
  <message id="handsetReady">
   <source>The handset is connected.</source>
   <translation type="unfinished">الهاتف متصل.</translation>
  </message>
  <message id="handsetStopping">
   <source>Stopping…</source>
   <translation type="unfinished">جارٍ الإيقاف…</translation>
  </message>
  <message id="handsetChoosePort">
   <source>Choose the handset's port in Tools / Options first.</source>
   <translation type="unfinished">اختر أولًا منفذ الهاتف من أدوات / خيارات.</translation>
  </message>
  <message id="handsetProgressFile">
   <source>Progress of this file</source>
   <translation type="unfinished">تقدّم هذا الملف</translation>
  </message>
  <message id="handsetProgressAll">
   <source>Progress in all</source>
   <translation type="unfinished">التقدّم الكلي</translation>
  </message>
  <message id="handsetSendTitle">
   <source>Download to Mobile</source>
   <translation type="unfinished">نقل إلى الهاتف</translation>
  </message>
  <message id="handsetNothingSelected">
   <source>Select the files for the handset first.</source>
   <translation type="unfinished">حدّد أولًا الملفات المراد نقلها إلى الهاتف.</translation>
  </message>
  <message id="handsetTable">
   <source>Files for the handset</source>
   <translation type="unfinished">ملفات للهاتف</translation>
  </message>
  <message id="handsetFile">
   <source>File</source>
   <translation type="unfinished">الملف</translation>
  </message>
  <message id="handsetSentAs">
   <source>Arrives As</source>
   <translation type="unfinished">يصل باسم</translation>
  </message>
  <message id="handsetPlace">
   <source>In</source>
   <translation type="unfinished">في</translation>
  </message>
  <message id="handsetSize">
   <source>Size</source>
   <translation type="unfinished">الحجم</translation>
  </message>
  <message id="handsetNote">
   <source>Note</source>
   <translation type="unfinished">ملاحظة</translation>
  </message>
  <message id="handsetPlanning" numerus="yes">
   <source>Looking at %1 files…</source>
   <translation type="unfinished">
    <numerusform>لا ملفات للفحص</numerusform>
    <numerusform>جارٍ فحص ملف واحد…</numerusform>
    <numerusform>جارٍ فحص ملفين…</numerusform>
    <numerusform>جارٍ فحص %1 ملفات…</numerusform>
    <numerusform>جارٍ فحص %1 ملفًا…</numerusform>
    <numerusform>جارٍ فحص %1 ملف…</numerusform>
   </translation>
  </message>
  <message id="handsetToSend" numerus="yes">
   <source>%1 files are ready to be sent.</source>
   <translation type="unfinished">
    <numerusform>لا ملفات جاهزة للنقل.</numerusform>
    <numerusform>ملف واحد جاهز للنقل.</numerusform>
    <numerusform>ملفان جاهزان للنقل.</numerusform>
    <numerusform>%1 ملفات جاهزة للنقل.</numerusform>
    <numerusform>%1 ملفًا جاهزًا للنقل.</numerusform>
    <numerusform>%1 ملف جاهز للنقل.</numerusform>
   </translation>
  </message>
  <message id="handsetNoneToSend">
   <source>None of these files can be sent.</source>
   <translation type="unfinished">لا يمكن نقل أيٍّ من هذه الملفات.</translation>
  </message>
  <message id="handsetInAll">
   <source>%1 in all.</source>
   <translation type="unfinished">المجموع %1.</translation>
  </message>
  <message id="handsetSending">
   <source>Sending %1</source>
   <translation type="unfinished">جارٍ نقل %1</translation>
  </message>
  <message id="handsetSent" numerus="yes">
   <source>%1 files are on the handset now.</source>
   <translation type="unfinished">
    <numerusform>لم يُنقل أي ملف.</numerusform>
    <numerusform>ملف واحد على الهاتف الآن.</numerusform>
    <numerusform>ملفان على الهاتف الآن.</numerusform>
    <numerusform>%1 ملفات على الهاتف الآن.</numerusform>
    <numerusform>%1 ملفًا على الهاتف الآن.</numerusform>
    <numerusform>%1 ملف على الهاتف الآن.</numerusform>
   </translation>
  </message>
  <message id="handsetWaiting">
   <source>Looking at it…</source>
   <translation type="unfinished">جارٍ الفحص…</translation>
  </message>
  <message id="handsetUnchanged">
   <source>As it is</source>
   <translation type="unfinished">كما هو</translation>
  </message>
  <message id="handsetFitted">
   <source>Fitted to the handset's screen, %1 × %2</source>
   <translation type="unfinished">بحجم شاشة الهاتف، %1 × %2</translation>
  </message>
  <message id="handsetAsJpeg">
   <source>As a JPEG picture</source>
   <translation type="unfinished">كصورة JPEG</translation>
  </message>
  <message id="handsetAsSmaf">
   <source>As a SMAF ring tone</source>
   <translation type="unfinished">كنغمة SMAF</translation>
  </message>
  <message id="handsetWithArchive">
   <source>With its program, %1</source>
   <translation type="unfinished">مع برنامجه %1</translation>
  </message>
  <message id="handsetTuneKept">
   <source>As MIDI, since it cannot be converted: %1</source>
   <translation type="unfinished">كملف MIDI، لتعذّر تحويله: %1</translation>
  </message>
  <message id="handsetOtherKind">
   <source>As it is; the handset may not know what to do with it</source>
   <translation type="unfinished">كما هو؛ قد لا يعرف الهاتف ما يفعل به</translation>
  </message>
  <message id="handsetTooLong">
   <source>Too long: the handset takes ring tones of up to %1 bytes</source>
   <translation type="unfinished">طويل جدًا: يقبل الهاتف نغمات حتى %1 بايت</translation>
  </message>
  <message id="handsetDescriptorBad">
   <source>Its JAD file is incorrect and ends the transfer</source>
   <translation type="unfinished">ملف JAD غير صحيح وينهي النقل</translation>
  </message>
  <message id="handsetArchiveMissing">
   <source>%1 is missing, which ends the transfer</source>
   <translation type="unfinished">الملف %1 مفقود، وهذا ينهي النقل</translation>
  </message>
  <message id="handsetNotPrepared">
   <source>Cannot be made ready: %1</source>
   <translation type="unfinished">تعذّر تجهيزه: %1</translation>
  </message>
  <message id="handsetNotAFile">
   <source>Is no file</source>
   <translation type="unfinished">ليس ملفًا</translation>
  </message>
  <message id="handsetGone">
   <source>Is not there any more</source>
   <translation type="unfinished">لم يعد موجودًا</translation>
  </message>
  <message id="handsetIsSent">
   <source>Sent</source>
   <translation type="unfinished">نُقل</translation>
  </message>
  <message id="handsetIsNotSent">
   <source>Not sent</source>
   <translation type="unfinished">لم يُنقل</translation>
  </message>
  <message id="handsetUnderWay">
   <source>Being sent</source>
   <translation type="unfinished">جارٍ النقل</translation>
  </message>
  <message id="handsetFetchTitle">
   <source>Upload to PC</source>
   <translation type="unfinished">نقل إلى الحاسوب</translation>
  </message>
  <message id="handsetFetchPhotos">
   <source>Copy from the handset</source>
   <translation type="unfinished">النسخ من الهاتف</translation>
  </message>
  <message id="handsetFetchRings">
   <source>Ring tones of the handset</source>
   <translation type="unfinished">نغمات الهاتف</translation>
  </message>
  <message id="handsetFetchAnimations">
   <source>Animations of the handset</source>
   <translation type="unfinished">رسوم الهاتف المتحركة</translation>
  </message>
  <message id="handsetInto">
   <source>Into %1</source>
   <translation type="unfinished">إلى %1</translation>
  </message>
  <message id="handsetChoose">
   <source>Tick what to copy.</source>
   <translation type="unfinished">حدّد ما تريد نسخه.</translation>
  </message>
  <message id="handsetCounting">
   <source>Counting…</source>
   <translation type="unfinished">جارٍ العدّ…</translation>
  </message>
  <message id="handsetFetching">
   <source>Copying from %1</source>
   <translation type="unfinished">جارٍ النسخ من %1</translation>
  </message>
  <message id="handsetFetched" numerus="yes">
   <source>%1 files were copied from the handset.</source>
   <translation type="unfinished">
    <numerusform>لم يُنسخ أي ملف من الهاتف.</numerusform>
    <numerusform>نُسخ ملف واحد من الهاتف.</numerusform>
    <numerusform>نُسخ ملفان من الهاتف.</numerusform>
    <numerusform>نُسخت %1 ملفات من الهاتف.</numerusform>
    <numerusform>نُسخ %1 ملفًا من الهاتف.</numerusform>
    <numerusform>نُسخ %1 ملف من الهاتف.</numerusform>
   </translation>
  </message>
  <message id="handsetKeptFiles">
   <source>What has arrived is in %1.</source>
   <translation type="unfinished">ما وصل موجود في %1.</translation>
  </message>
  <message id="handsetNoFolder">
   <source>Choose a folder to copy into first.</source>
   <translation type="unfinished">اختر أولًا مجلدًا للنسخ إليه.</translation>
  </message>
  <message id="commandUploadRings">
   <source>Upload Ring Tones to PC</source>
   <translation type="unfinished">نقل النغمات إلى الحاسوب</translation>
  </message>
  <message id="commandUploadAnimations">
   <source>Upload Animations to PC</source>
   <translation type="unfinished">نقل الرسوم المتحركة إلى الحاسوب</translation>
  </message>
  <message id="handsetDeleteToo">
   <source>Remove from Mobile Handset too?</source>
   <translation type="unfinished">هل يُحذف من الهاتف أيضًا؟</translation>
  </message>
  <message id="handsetDeleteAsk" numerus="yes">
   <source>Delete %1 files?</source>
   <translation type="unfinished">
    <numerusform>لا ملفات للحذف (%1).</numerusform>
    <numerusform>هل تحذف %1 ملف؟</numerusform>
    <numerusform>هل تحذف ملفين (%1)؟</numerusform>
    <numerusform>هل تحذف %1 ملفات؟</numerusform>
    <numerusform>هل تحذف %1 ملفًا؟</numerusform>
    <numerusform>هل تحذف %1 ملف؟</numerusform>
   </translation>
  </message>
  <message id="handsetDeleteWhy">
   <source>What lies in this folder came from the handset. On this computer, what is deleted goes to the trash.</source>
   <translation type="unfinished">ما في هذا المجلد جاء من الهاتف. على هذا الحاسوب يُنقل المحذوف إلى سلة المهملات.</translation>
  </message>
  <message id="handsetDeleteWhyForGood">
   <source>What lies in this folder came from the handset. On this computer, what is deleted is gone for good.</source>
   <translation type="unfinished">ما في هذا المجلد جاء من الهاتف. على هذا الحاسوب يُحذف نهائيًا.</translation>
  </message>
  <message id="handsetDeleting">
   <source>Removing from the handset</source>
   <translation type="unfinished">جارٍ الحذف من الهاتف</translation>
  </message>
  <message id="handsetDeleteFailed">
   <source>Can not delete default "Photo" or "Ring".</source>
   <translation type="unfinished">لا يمكن حذف عناصر «صورة» أو «نغمة» الافتراضية.</translation>
  </message>
  <message id="infoTitle">
   <source>Information on %1</source>
   <translation type="unfinished">معلومات عن %1</translation>
  </message>
  <message id="infoPane">
   <source>Photo Information</source>
   <translation type="unfinished">معلومات الصورة</translation>
  </message>
  <message id="infoPages">
   <source>Pages</source>
   <translation type="unfinished">الصفحات</translation>
  </message>
  <message id="infoGeneral">
   <source>General</source>
   <translation type="unfinished">عام</translation>
  </message>
  <message id="infoExif">
   <source>EXIF</source>
   <translation type="unfinished">EXIF</translation>
  </message>
  <message id="infoNothing">
   <source>Select a photo to see its facts</source>
   <translation type="unfinished">حدد صورة لرؤية معلوماتها</translation>
  </message>
  <message id="infoNothingMore">
   <source>Name, size, dates and caption are shown here.</source>
   <translation type="unfinished">يظهر هنا الاسم والحجم والتواريخ والشرح.</translation>
  </message>
  <message id="infoName">
   <source>Name:</source>
   <translation type="unfinished">الاسم:</translation>
  </message>
  <message id="infoFolder">
   <source>Folder:</source>
   <translation type="unfinished">المجلد:</translation>
  </message>
  <message id="infoKind">
   <source>Type:</source>
   <translation type="unfinished">النوع:</translation>
  </message>
  <message id="infoPixels">
   <source>Picture size:</source>
   <translation type="unfinished">أبعاد الصورة:</translation>
  </message>
  <message id="infoSize">
   <source>Size:</source>
   <translation type="unfinished">الحجم:</translation>
  </message>
  <message id="infoCreated">
   <source>Created:</source>
   <translation type="unfinished">تاريخ الإنشاء:</translation>
  </message>
  <message id="infoModified">
   <source>Modified:</source>
   <translation type="unfinished">تاريخ التعديل:</translation>
  </message>
  <message id="infoTaken">
   <source>Taken:</source>
   <translation type="unfinished">تاريخ الالتقاط:</translation>
  </message>
  <message id="infoSeveral">
   <source>Several values</source>
   <translation type="unfinished">قيم مختلفة</translation>
  </message>
  <message id="infoReading">
   <source>Reading...</source>
   <translation type="unfinished">جارٍ القراءة...</translation>
  </message>
  <message id="infoAndMore">
   <source>%1 and more</source>
   <translation type="unfinished">%1 وأكثر</translation>
  </message>
  <message id="infoExifText">
   <source>What the camera wrote down</source>
   <translation type="unfinished">ما سجلته الكاميرا</translation>
  </message>
  <message id="listColumnHeadings">
   <source>Name|Size|Type|Modified</source>
   <translation type="unfinished">الاسم|الحجم|النوع|تاريخ التعديل</translation>
  </message>
  <message id="listDateTaken">
   <source>Date Taken</source>
   <translation type="unfinished">تاريخ الالتقاط</translation>
  </message>
  <message id="listStandardColumns">
   <source>Standard Columns</source>
   <translation type="unfinished">الأعمدة المعتادة</translation>
  </message>
  <message id="listSorting">
   <source>Sorting: %1 of %2 files read</source>
   <translation type="unfinished">فرز: قُرئ %1 من %2 ملف</translation>
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
  <message id="listSpecialPlace">
   <source>This place holds no files</source>
   <translation type="unfinished">لا يحتوي هذا المكان على ملفات</translation>
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
  <message id="kindSearchResult">
   <source>Search result</source>
   <translation type="unfinished">نتيجة بحث</translation>
  </message>
  <message id="noticeBar">
   <source>Notice</source>
   <translation type="unfinished">إشعار</translation>
  </message>
  <message id="noticePhotos" numerus="yes">
   <source>A card with %1 photos is here.</source>
   <translation type="unfinished">
    <numerusform>لا توجد صور في البطاقة.</numerusform>
    <numerusform>توجد هنا بطاقة فيها صورة واحدة.</numerusform>
    <numerusform>توجد هنا بطاقة فيها صورتان.</numerusform>
    <numerusform>توجد هنا بطاقة فيها %1 صور.</numerusform>
    <numerusform>توجد هنا بطاقة فيها %1 صورة.</numerusform>
    <numerusform>توجد هنا بطاقة فيها %1 صورة.</numerusform>
   </translation>
  </message>
  <message id="noticeClips" numerus="yes">
   <source>A card with %1 video clips is here.</source>
   <translation type="unfinished">
    <numerusform>لا توجد مقاطع في البطاقة.</numerusform>
    <numerusform>توجد هنا بطاقة فيها مقطع فيديو واحد.</numerusform>
    <numerusform>توجد هنا بطاقة فيها مقطعا فيديو.</numerusform>
    <numerusform>توجد هنا بطاقة فيها %1 مقاطع فيديو.</numerusform>
    <numerusform>توجد هنا بطاقة فيها %1 مقطع فيديو.</numerusform>
    <numerusform>توجد هنا بطاقة فيها %1 مقطع فيديو.</numerusform>
   </translation>
  </message>
  <message id="noticeBoth">
   <source>A card with %1 photos and video clips is here.</source>
   <translation type="unfinished">توجد هنا بطاقة تحتوي على صور ومقاطع فيديو، وعددها %1.</translation>
  </message>
  <message id="noticeMany">
   <source>A card with more than %1 photos is here.</source>
   <translation type="unfinished">توجد هنا بطاقة فيها أكثر من %1 صورة.</translation>
  </message>
  <message id="noticePhone">
   <source>A phone may be connected at %1.</source>
   <translation type="unfinished">قد يكون هناك هاتف متصل عند %1.</translation>
  </message>
  <message id="noticeCopy">
   <source>Copy Photos...</source>
   <translation type="unfinished">نسخ الصور...</translation>
  </message>
  <message id="noticeGet">
   <source>Get Files From the Phone...</source>
   <translation type="unfinished">جلب الملفات من الهاتف...</translation>
  </message>
  <message id="noticeSend">
   <source>Send Selection to the Phone...</source>
   <translation type="unfinished">إرسال المحدد إلى الهاتف...</translation>
  </message>
  <message id="noticeClose">
   <source>Close Notice</source>
   <translation type="unfinished">إغلاق الإشعار</translation>
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
  <message id="renameBadCharacters">
   <source>These characters cann't used in filename:
/ \ : * ? "" &lt; &gt; |</source>
   <translation type="unfinished">لا يمكن استخدام هذه الأحرف في اسم الملف:
/ \ : * ? "" &lt; &gt; |</translation>
  </message>
  <message id="renameTooLong">
   <source>Can't rename. The file name or file extension is too long.</source>
   <translation type="unfinished">تتعذر إعادة التسمية. اسم الملف أو امتداده طويل جدًا.</translation>
  </message>
  <message id="renameTitle">
   <source>Rename</source>
   <translation type="unfinished">إعادة التسمية</translation>
  </message>
  <message id="renamePrefix">
   <source>&amp;Prefix :</source>
   <translation type="unfinished">&amp;البادئة:</translation>
  </message>
  <message id="renamePrefixTip">
   <source>The new names begin with this text</source>
   <translation type="unfinished">تبدأ الأسماء الجديدة بهذا النص</translation>
  </message>
  <message id="renameDigits">
   <source>&amp;digits</source>
   <translation type="unfinished">عدد الأر&amp;قام:</translation>
  </message>
  <message id="renameDigitsTip">
   <source>How many digits the number has at least, with zeros in front</source>
   <translation type="unfinished">أقل عدد من الأرقام في الرقم التسلسلي، تسبقه أصفار</translation>
  </message>
  <message id="renameDigitsRange">
   <source>1 to 16</source>
   <translation type="unfinished">من 1 إلى 16</translation>
  </message>
  <message id="renameSample">
   <source>Sample: %1</source>
   <translation type="unfinished">مثال: %1</translation>
  </message>
  <message id="renameOldName">
   <source>Old name</source>
   <translation type="unfinished">الاسم القديم</translation>
  </message>
  <message id="renameNewName">
   <source>New name</source>
   <translation type="unfinished">الاسم الجديد</translation>
  </message>
  <message id="renameNote">
   <source>Note</source>
   <translation type="unfinished">ملاحظة</translation>
  </message>
  <message id="renameTaken">
   <source>Taken: another number</source>
   <translation type="unfinished">محجوز: رقم آخر</translation>
  </message>
  <message id="renameTakenTip">
   <source>The name that the next number gives is there already, so this file gets one with a second number</source>
   <translation type="unfinished">الاسم الذي يعطيه الرقم التالي موجود من قبل، فيحصل هذا الملف على اسم برقم ثانٍ</translation>
  </message>
  <message id="renameKeeps">
   <source>Keeps its name</source>
   <translation type="unfinished">يحتفظ باسمه</translation>
  </message>
  <message id="renameKeepsTip">
   <source>Search results (asr) and shortcuts (lnk) are not renamed</source>
   <translation type="unfinished">لا تعاد تسمية نتائج البحث (asr) والاختصارات (lnk)</translation>
  </message>
  <message id="renamePlan">
   <source>Old and new names</source>
   <translation type="unfinished">الأسماء القديمة والجديدة</translation>
  </message>
  <message id="renameLooking">
   <source>Looking for names that are taken…</source>
   <translation type="unfinished">يجري البحث عن الأسماء المحجوزة…</translation>
  </message>
  <message id="renameFiles" numerus="yes">
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
  <message id="renameClashes" numerus="yes">
   <source>%1 get another number because the name is taken</source>
   <translation type="unfinished">
    <numerusform>%1 ملف يحصل على رقم آخر لأن الاسم محجوز</numerusform>
    <numerusform>ملف واحد يحصل على رقم آخر لأن الاسم محجوز</numerusform>
    <numerusform>ملفان يحصلان على رقم آخر لأن الاسم محجوز</numerusform>
    <numerusform>%1 ملفات تحصل على رقم آخر لأن الاسم محجوز</numerusform>
    <numerusform>%1 ملفًا يحصل على رقم آخر لأن الاسم محجوز</numerusform>
    <numerusform>%1 ملف يحصل على رقم آخر لأن الاسم محجوز</numerusform>
   </translation>
  </message>
  <message id="renameKept" numerus="yes">
   <source>%1 keep their names</source>
   <translation type="unfinished">
    <numerusform>%1 ملف يحتفظ باسمه</numerusform>
    <numerusform>ملف واحد يحتفظ باسمه</numerusform>
    <numerusform>ملفان يحتفظان باسميهما</numerusform>
    <numerusform>%1 ملفات تحتفظ بأسمائها</numerusform>
    <numerusform>%1 ملفًا يحتفظ باسمه</numerusform>
    <numerusform>%1 ملف يحتفظ باسمه</numerusform>
   </translation>
  </message>
  <message id="renameAnd">
   <source>%1, %2</source>
   <translation type="unfinished">%1، %2</translation>
  </message>
  <message id="renameOnlyTaken">
   <source>&amp;Show only files whose name was taken</source>
   <translation type="unfinished">إظهار الملفات ال&amp;تي كان اسمها محجوزًا فقط</translation>
  </message>
  <message id="renameDo" numerus="yes">
   <source>&amp;Rename %1 Files</source>
   <translation type="unfinished">
    <numerusform>إعادة &amp;تسمية %1 ملف</numerusform>
    <numerusform>إعادة &amp;تسمية ملف واحد</numerusform>
    <numerusform>إعادة &amp;تسمية ملفين</numerusform>
    <numerusform>إعادة &amp;تسمية %1 ملفات</numerusform>
    <numerusform>إعادة &amp;تسمية %1 ملفًا</numerusform>
    <numerusform>إعادة &amp;تسمية %1 ملف</numerusform>
   </translation>
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
   <translation type="unfinished">البحث عن ملفات (F3)</translation>
  </message>
  <message id="skinLeaveSearch">
   <source>Changing folders will cancel your search. Are you sure you want to change folders?</source>
   <translation type="unfinished">سيؤدي تغيير المجلد إلى إلغاء البحث. هل تريد تغيير المجلد؟</translation>
  </message>
  <message id="stampReadOnly">
   <source>The read-only file can not be processed.</source>
   <translation type="unfinished">لا يمكن معالجة ملف للقراءة فقط.</translation>
  </message>
  <message id="stampChanging" numerus="yes">
   <source>Changing the time stamps of %1 files</source>
   <translation type="unfinished">
    <numerusform>تُغيَّر أختام الوقت لـ %1 ملف</numerusform>
    <numerusform>يُغيَّر ختم الوقت لملف واحد</numerusform>
    <numerusform>يُغيَّر ختما الوقت لملفين</numerusform>
    <numerusform>تُغيَّر أختام الوقت لـ %1 ملفات</numerusform>
    <numerusform>تُغيَّر أختام الوقت لـ %1 ملفًا</numerusform>
    <numerusform>تُغيَّر أختام الوقت لـ %1 ملف</numerusform>
   </translation>
  </message>
  <message id="stampUndoName">
   <source>Undo Time Stamps of “%1”</source>
   <translation type="unfinished">التراجع عن ختم الوقت لـ «%1»</translation>
  </message>
  <message id="stampUndo" numerus="yes">
   <source>Undo Time Stamps of %1 Items</source>
   <translation type="unfinished">
    <numerusform>التراجع عن أختام الوقت لـ %1 عنصر</numerusform>
    <numerusform>التراجع عن ختم الوقت لعنصر واحد</numerusform>
    <numerusform>التراجع عن ختمي الوقت لعنصرين</numerusform>
    <numerusform>التراجع عن أختام الوقت لـ %1 عناصر</numerusform>
    <numerusform>التراجع عن أختام الوقت لـ %1 عنصرًا</numerusform>
    <numerusform>التراجع عن أختام الوقت لـ %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="stampTitle">
   <source>Change Time Stamp</source>
   <translation type="unfinished">تغيير الطابع الزمني</translation>
  </message>
  <message id="stampNothing">
   <source>Select the files whose time stamps are to be changed.</source>
   <translation type="unfinished">حدّد أولًا الملفات التي ستتغيّر طوابعها الزمنية.</translation>
  </message>
  <message id="stampWhat" numerus="yes">
   <source>Time stamps of %1 files</source>
   <translation type="unfinished">
    <numerusform>الطوابع الزمنية لـ %1 ملف</numerusform>
    <numerusform>الطوابع الزمنية لملف واحد</numerusform>
    <numerusform>الطوابع الزمنية لملفين</numerusform>
    <numerusform>الطوابع الزمنية لـ %1 ملفات</numerusform>
    <numerusform>الطوابع الزمنية لـ %1 ملفًا</numerusform>
    <numerusform>الطوابع الزمنية لـ %1 ملف</numerusform>
   </translation>
  </message>
  <message id="stampCreation">
   <source>&amp;Creation time</source>
   <translation type="unfinished">وقت الإ&amp;نشاء</translation>
  </message>
  <message id="stampModified">
   <source>Last &amp;modified time</source>
   <translation type="unfinished">وقت آخر &amp;تعديل</translation>
  </message>
  <message id="stampFromCreation">
   <source>The date the &amp;file was created</source>
   <translation type="unfinished">تاريخ إنشاء ال&amp;ملف</translation>
  </message>
  <message id="stampFromCreationTip">
   <source>A creation time cannot be set from itself</source>
   <translation type="unfinished">لا يمكن ضبط وقت الإنشاء من نفسه</translation>
  </message>
  <message id="stampFromNow">
   <source>Current date and &amp;time</source>
   <translation type="unfinished">التاريخ والوقت ال&amp;حاليان</translation>
  </message>
  <message id="stampFromExif">
   <source>&amp;EXIF date, if available</source>
   <translation type="unfinished">تاريخ &amp;EXIF إن وُجد</translation>
  </message>
  <message id="stampFromExifIn">
   <source>&amp;EXIF date, if available (in %1 of %2)</source>
   <translation type="unfinished">تاريخ &amp;EXIF إن وُجد (في %1 من %2)</translation>
  </message>
  <message id="stampFromPicked">
   <source>T&amp;his date and time:</source>
   <translation type="unfinished">&amp;هذا التاريخ والوقت:</translation>
  </message>
  <message id="stampDate">
   <source>Date</source>
   <translation type="unfinished">التاريخ</translation>
  </message>
  <message id="stampTime">
   <source>Time</source>
   <translation type="unfinished">الوقت</translation>
  </message>
  <message id="stampLooking">
   <source>Looking for EXIF dates…</source>
   <translation type="unfinished">يجري البحث عن تواريخ EXIF…</translation>
  </message>
  <message id="stampNoFlag">
   <source>Choose which of the two times to change.</source>
   <translation type="unfinished">اختر أيّ الوقتين سيتغيّر.</translation>
  </message>
  <message id="stampNoDate">
   <source>This date cannot be set.</source>
   <translation type="unfinished">لا يمكن ضبط هذا التاريخ.</translation>
  </message>
  <message id="stampSetsModified" numerus="yes">
   <source>The modification time of %1 files becomes %2.</source>
   <translation type="unfinished">
    <numerusform>يصبح وقت تعديل %1 ملف: %2.</numerusform>
    <numerusform>يصبح وقت تعديل ملف واحد: %2.</numerusform>
    <numerusform>يصبح وقت تعديل ملفين: %2.</numerusform>
    <numerusform>يصبح وقت تعديل %1 ملفات: %2.</numerusform>
    <numerusform>يصبح وقت تعديل %1 ملفًا: %2.</numerusform>
    <numerusform>يصبح وقت تعديل %1 ملف: %2.</numerusform>
   </translation>
  </message>
  <message id="stampSetsCreation" numerus="yes">
   <source>The creation time of %1 files becomes %2.</source>
   <translation type="unfinished">
    <numerusform>يصبح وقت إنشاء %1 ملف: %2.</numerusform>
    <numerusform>يصبح وقت إنشاء ملف واحد: %2.</numerusform>
    <numerusform>يصبح وقت إنشاء ملفين: %2.</numerusform>
    <numerusform>يصبح وقت إنشاء %1 ملفات: %2.</numerusform>
    <numerusform>يصبح وقت إنشاء %1 ملفًا: %2.</numerusform>
    <numerusform>يصبح وقت إنشاء %1 ملف: %2.</numerusform>
   </translation>
  </message>
  <message id="stampSetsBoth" numerus="yes">
   <source>The creation and modification times of %1 files become %2.</source>
   <translation type="unfinished">
    <numerusform>يصبح وقتا إنشاء وتعديل %1 ملف: %2.</numerusform>
    <numerusform>يصبح وقتا إنشاء وتعديل ملف واحد: %2.</numerusform>
    <numerusform>يصبح وقتا إنشاء وتعديل ملفين: %2.</numerusform>
    <numerusform>يصبح وقتا إنشاء وتعديل %1 ملفات: %2.</numerusform>
    <numerusform>يصبح وقتا إنشاء وتعديل %1 ملفًا: %2.</numerusform>
    <numerusform>يصبح وقتا إنشاء وتعديل %1 ملف: %2.</numerusform>
   </translation>
  </message>
  <message id="stampToCreation">
   <source>the time at which each was created</source>
   <translation type="unfinished">وقت إنشاء كل ملف</translation>
  </message>
  <message id="stampToNow">
   <source>the present time</source>
   <translation type="unfinished">الوقت الحالي</translation>
  </message>
  <message id="stampToExif">
   <source>the EXIF date of each</source>
   <translation type="unfinished">تاريخ EXIF لكل ملف</translation>
  </message>
  <message id="stampLeft" numerus="yes">
   <source>%1 files have no EXIF date and are left as they are.</source>
   <translation type="unfinished">
    <numerusform>%1 ملف بلا تاريخ EXIF ويبقى كما هو.</numerusform>
    <numerusform>ملف واحد بلا تاريخ EXIF ويبقى كما هو.</numerusform>
    <numerusform>ملفان بلا تاريخ EXIF ويبقيان كما هما.</numerusform>
    <numerusform>%1 ملفات بلا تاريخ EXIF وتبقى كما هي.</numerusform>
    <numerusform>%1 ملفًا بلا تاريخ EXIF ويبقى كما هو.</numerusform>
    <numerusform>%1 ملف بلا تاريخ EXIF ويبقى كما هو.</numerusform>
   </translation>
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
  <message id="toneDuration">
   <source>Duration:</source>
   <translation type="unfinished">المدة:</translation>
  </message>
  <message id="toneForm">
   <source>Sound:</source>
   <translation type="unfinished">الصوت:</translation>
  </message>
  <message id="toneNotes">
   <source>Notes:</source>
   <translation type="unfinished">النغمات:</translation>
  </message>
  <message id="tonePolyphony">
   <source>At once:</source>
   <translation type="unfinished">معًا:</translation>
  </message>
  <message id="toneChannels">
   <source>Channels:</source>
   <translation type="unfinished">القنوات:</translation>
  </message>
  <message id="toneTitle">
   <source>Title:</source>
   <translation type="unfinished">العنوان:</translation>
  </message>
  <message id="toneWaves">
   <source>Recordings:</source>
   <translation type="unfinished">التسجيلات:</translation>
  </message>
  <message id="toneHandset">
   <source>Handset:</source>
   <translation type="unfinished">الهاتف:</translation>
  </message>
  <message id="toneWaveForm">
   <source>%1 bits, %2, %3 Hz</source>
   <translation type="unfinished">%1 بت، %2، %3 هرتز</translation>
  </message>
  <message id="toneMono">
   <source>mono</source>
   <translation type="unfinished">أحادي</translation>
  </message>
  <message id="toneStereo">
   <source>stereo</source>
   <translation type="unfinished">ستيريو</translation>
  </message>
  <message id="toneMoreChannels" numerus="yes">
   <source>%1 channels</source>
   <translation type="unfinished">
    <numerusform>%1 قناة</numerusform>
    <numerusform>%1 قناة</numerusform>
    <numerusform>%1 قناتان</numerusform>
    <numerusform>%1 قنوات</numerusform>
    <numerusform>%1 قناة</numerusform>
    <numerusform>%1 قناة</numerusform>
   </translation>
  </message>
  <message id="toneSuits">
   <source>Can become a ring tone as it is</source>
   <translation type="unfinished">يمكن أن يصير نغمة رنين كما هو</translation>
  </message>
  <message id="toneNotRead">
   <source>The file cannot be read: %1</source>
   <translation type="unfinished">لا يمكن قراءة الملف: %1</translation>
  </message>
  <message id="toneNotMidi">
   <source>This is no MIDI file.</source>
   <translation type="unfinished">هذا ليس ملف MIDI.</translation>
  </message>
  <message id="toneMidiCut">
   <source>This MIDI file breaks off at its beginning.</source>
   <translation type="unfinished">ملف MIDI هذا ينقطع في أوله.</translation>
  </message>
  <message id="toneMidiFormat">
   <source>This is a MIDI file of a kind that is not known.</source>
   <translation type="unfinished">هذا ملف MIDI من نوع غير معروف.</translation>
  </message>
  <message id="toneMidiDivision">
   <source>This MIDI file does not say how fast it is.</source>
   <translation type="unfinished">ملف MIDI هذا لا يذكر سرعته.</translation>
  </message>
  <message id="toneMidiDamaged">
   <source>This MIDI file is damaged.</source>
   <translation type="unfinished">ملف MIDI هذا تالف.</translation>
  </message>
  <message id="toneMidiNoTrack">
   <source>This MIDI file holds no music.</source>
   <translation type="unfinished">لا موسيقى في ملف MIDI هذا.</translation>
  </message>
  <message id="toneNotSmaf">
   <source>This SMAF file is damaged, or of a kind that is not known (%1).</source>
   <translation type="unfinished">ملف SMAF هذا تالف أو من نوع غير معروف (%1).</translation>
  </message>
  <message id="toneNotWav">
   <source>This WAV file is damaged, or of a kind that is not known (%1).</source>
   <translation type="unfinished">ملف WAV هذا تالف أو من نوع غير معروف (%1).</translation>
  </message>
  <message id="tonePlay">
   <source>Play</source>
   <translation type="unfinished">تشغيل</translation>
  </message>
  <message id="toneStop">
   <source>Stop</source>
   <translation type="unfinished">إيقاف</translation>
  </message>
  <message id="tonePlayTip">
   <source>Play this sound</source>
   <translation type="unfinished">تشغيل هذا الصوت</translation>
  </message>
  <message id="toneStopTip">
   <source>Stop playing</source>
   <translation type="unfinished">إيقاف التشغيل</translation>
  </message>
  <message id="toneProgress">
   <source>How far it has played</source>
   <translation type="unfinished">ما شُغّل منه</translation>
  </message>
  <message id="toneTimes">
   <source>%1 of %2</source>
   <translation type="unfinished">%1 من %2</translation>
  </message>
  <message id="toneNeedsFluidSynth">
   <source>To play ring tones, install the packages fluidsynth and fluid-soundfont-gm (or timgm6mb-soundfont).</source>
   <translation type="unfinished">لتشغيل نغمات الرنين ثبّت الحزمتين fluidsynth و fluid-soundfont-gm (أو timgm6mb-soundfont).</translation>
  </message>
  <message id="toneNeedsSoundFont">
   <source>To play ring tones, install a sound font: the package fluid-soundfont-gm or timgm6mb-soundfont.</source>
   <translation type="unfinished">لتشغيل نغمات الرنين ثبّت مكتبة أصوات: الحزمة fluid-soundfont-gm أو timgm6mb-soundfont.</translation>
  </message>
  <message id="toneNeedsPlayer">
   <source>To play recordings, install one of the packages pipewire-bin, pulseaudio-utils, alsa-utils and ffmpeg.</source>
   <translation type="unfinished">لتشغيل التسجيلات ثبّت إحدى الحزم pipewire-bin و pulseaudio-utils و alsa-utils و ffmpeg.</translation>
  </message>
  <message id="toneNothingToPlay">
   <source>This sound is of a kind that cannot be played here.</source>
   <translation type="unfinished">لا يمكن تشغيل صوت من هذا النوع هنا.</translation>
  </message>
  <message id="toneNotPrepared">
   <source>The sound could not be made ready for playing: %1</source>
   <translation type="unfinished">تعذّر تجهيز الصوت للتشغيل: %1</translation>
  </message>
  <message id="tonePlayerFailed">
   <source>%1 could not play it: %2</source>
   <translation type="unfinished">تعذّر على %1 تشغيله: %2</translation>
  </message>
  <message id="tonePlayerSilent">
   <source>%1 could not play it and did not say why.</source>
   <translation type="unfinished">تعذّر على %1 تشغيله ولم يذكر السبب.</translation>
  </message>
  <message id="commandConvertTone">
   <source>Convert for the Handset...</source>
   <translation type="unfinished">تحويل للهاتف...</translation>
  </message>
  <message id="toneNothing">
   <source>Select MIDI or WAV files to convert first.</source>
   <translation type="unfinished">حدّد أولًا ملفات MIDI أو WAV المراد تحويلها.</translation>
  </message>
  <message id="toneConvertTitle">
   <source>Convert for the Handset</source>
   <translation type="unfinished">تحويل للهاتف</translation>
  </message>
  <message id="toneTable">
   <source>Files to convert</source>
   <translation type="unfinished">الملفات المراد تحويلها</translation>
  </message>
  <message id="toneFile">
   <source>File</source>
   <translation type="unfinished">الملف</translation>
  </message>
  <message id="toneBecomes">
   <source>Becomes</source>
   <translation type="unfinished">يصير</translation>
  </message>
  <message id="toneSize">
   <source>Size</source>
   <translation type="unfinished">الحجم</translation>
  </message>
  <message id="toneLength">
   <source>Duration</source>
   <translation type="unfinished">المدة</translation>
  </message>
  <message id="toneNote">
   <source>Note</source>
   <translation type="unfinished">ملاحظة</translation>
  </message>
  <message id="toneLooking">
   <source>Looking at it…</source>
   <translation type="unfinished">جارٍ فحصه…</translation>
  </message>
  <message id="toneSource">
   <source>Source:</source>
   <translation type="unfinished">المصدر:</translation>
  </message>
  <message id="toneTarget">
   <source>New file:</source>
   <translation type="unfinished">الملف الجديد:</translation>
  </message>
  <message id="toneTargetSize">
   <source>Size:</source>
   <translation type="unfinished">الحجم:</translation>
  </message>
  <message id="toneSizeOf">
   <source>%1 of %2 bytes</source>
   <translation type="unfinished">%1 من %2 بايت</translation>
  </message>
  <message id="toneLossesName">
   <source>What is lost</source>
   <translation type="unfinished">ما يُفقد</translation>
  </message>
  <message id="toneHalve">
   <source>&amp;Halve recordings of 8,000 Hz to 4,000 Hz</source>
   <translation type="unfinished">&amp;تنصيف تسجيلات 8000 هرتز إلى 4000 هرتز</translation>
  </message>
  <message id="toneHalveSizes">
   <source>&amp;Halve to 4,000 Hz: %1 instead of %2</source>
   <translation type="unfinished">&amp;تنصيف إلى 4000 هرتز: %1 بدلًا من %2</translation>
  </message>
  <message id="toneHalveTip">
   <source>Half the size, and a duller sound</source>
   <translation type="unfinished">نصف الحجم، وصوت أقل صفاءً</translation>
  </message>
  <message id="toneConvert" numerus="yes">
   <source>Convert %1 Files</source>
   <translation type="unfinished">
    <numerusform>تحويل %1 ملف</numerusform>
    <numerusform>تحويل %1 ملف</numerusform>
    <numerusform>تحويل %1 ملفين</numerusform>
    <numerusform>تحويل %1 ملفات</numerusform>
    <numerusform>تحويل %1 ملفًا</numerusform>
    <numerusform>تحويل %1 ملف</numerusform>
   </translation>
  </message>
  <message id="toneConvertAnyway" numerus="yes">
   <source>Convert %1 Files Anyway</source>
   <translation type="unfinished">
    <numerusform>تحويل %1 ملف مع ذلك</numerusform>
    <numerusform>تحويل %1 ملف مع ذلك</numerusform>
    <numerusform>تحويل %1 ملفين مع ذلك</numerusform>
    <numerusform>تحويل %1 ملفات مع ذلك</numerusform>
    <numerusform>تحويل %1 ملفًا مع ذلك</numerusform>
    <numerusform>تحويل %1 ملف مع ذلك</numerusform>
   </translation>
  </message>
  <message id="toneNoteGood">
   <source>Nothing is lost</source>
   <translation type="unfinished">لا يُفقد شيء</translation>
  </message>
  <message id="toneNoteLossy">
   <source>Loses something</source>
   <translation type="unfinished">يفقد شيئًا</translation>
  </message>
  <message id="toneNoteTooLong">
   <source>Too large</source>
   <translation type="unfinished">كبير جدًا</translation>
  </message>
  <message id="toneNoteRefused">
   <source>Cannot be converted</source>
   <translation type="unfinished">لا يمكن تحويله</translation>
  </message>
  <message id="tonePlanning" numerus="yes">
   <source>Looking at %1 files…</source>
   <translation type="unfinished">
    <numerusform>جارٍ فحص %1 ملف…</numerusform>
    <numerusform>جارٍ فحص %1 ملف…</numerusform>
    <numerusform>جارٍ فحص %1 ملفين…</numerusform>
    <numerusform>جارٍ فحص %1 ملفات…</numerusform>
    <numerusform>جارٍ فحص %1 ملفًا…</numerusform>
    <numerusform>جارٍ فحص %1 ملف…</numerusform>
   </translation>
  </message>
  <message id="toneNone">
   <source>Nothing of this can be converted.</source>
   <translation type="unfinished">لا يمكن تحويل شيء من هذا.</translation>
  </message>
  <message id="toneTooLong" numerus="yes">
   <source>%1 of the new files are larger than the %2 bytes that the handset takes.</source>
   <translation type="unfinished">
    <numerusform>%1 ملف من الملفات الجديدة أكبر مما يقبله الهاتف، وهو %2 بايت.</numerusform>
    <numerusform>%1 ملف من الملفات الجديدة أكبر مما يقبله الهاتف، وهو %2 بايت.</numerusform>
    <numerusform>%1 ملفان من الملفات الجديدة أكبر مما يقبله الهاتف، وهو %2 بايت.</numerusform>
    <numerusform>%1 ملفات من الملفات الجديدة أكبر مما يقبله الهاتف، وهو %2 بايت.</numerusform>
    <numerusform>%1 ملفًا من الملفات الجديدة أكبر مما يقبله الهاتف، وهو %2 بايت.</numerusform>
    <numerusform>%1 ملف من الملفات الجديدة أكبر مما يقبله الهاتف، وهو %2 بايت.</numerusform>
   </translation>
  </message>
  <message id="toneLossy">
   <source>Something of the sources is lost.</source>
   <translation type="unfinished">يُفقد شيء من المصادر.</translation>
  </message>
  <message id="toneGood">
   <source>Nothing is lost.</source>
   <translation type="unfinished">لا يُفقد شيء.</translation>
  </message>
  <message id="toneLostDropped" numerus="yes">
   <source>%1 notes are left out, because more than %2 would sound at once.</source>
   <translation type="unfinished">
    <numerusform>تُحذف %1 نغمة لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُحذف %1 نغمة لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُحذف %1 نغمتين لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُحذف %1 نغمات لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُحذف %1 نغمة لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُحذف %1 نغمة لأن أكثر من %2 ستُسمع معًا.</numerusform>
   </translation>
  </message>
  <message id="toneLostShortened" numerus="yes">
   <source>%1 notes are shortened, because more than %2 would sound at once.</source>
   <translation type="unfinished">
    <numerusform>تُقصَّر %1 نغمة لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُقصَّر %1 نغمة لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُقصَّر %1 نغمتين لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُقصَّر %1 نغمات لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُقصَّر %1 نغمة لأن أكثر من %2 ستُسمع معًا.</numerusform>
    <numerusform>تُقصَّر %1 نغمة لأن أكثر من %2 ستُسمع معًا.</numerusform>
   </translation>
  </message>
  <message id="toneLostUnended" numerus="yes">
   <source>%1 notes have no end and last to the end of the tune.</source>
   <translation type="unfinished">
    <numerusform>%1 نغمة بلا نهاية، فتدوم إلى آخر اللحن.</numerusform>
    <numerusform>%1 نغمة بلا نهاية، فتدوم إلى آخر اللحن.</numerusform>
    <numerusform>%1 نغمتان بلا نهاية، فتدوم إلى آخر اللحن.</numerusform>
    <numerusform>%1 نغمات بلا نهاية، فتدوم إلى آخر اللحن.</numerusform>
    <numerusform>%1 نغمة بلا نهاية، فتدوم إلى آخر اللحن.</numerusform>
    <numerusform>%1 نغمة بلا نهاية، فتدوم إلى آخر اللحن.</numerusform>
   </translation>
  </message>
  <message id="toneLostTooLong" numerus="yes">
   <source>%1 notes are cut to their greatest length.</source>
   <translation type="unfinished">
    <numerusform>تُقصَّر %1 نغمة إلى أطول مدة.</numerusform>
    <numerusform>تُقصَّر %1 نغمة إلى أطول مدة.</numerusform>
    <numerusform>تُقصَّر %1 نغمتين إلى أطول مدة.</numerusform>
    <numerusform>تُقصَّر %1 نغمات إلى أطول مدة.</numerusform>
    <numerusform>تُقصَّر %1 نغمة إلى أطول مدة.</numerusform>
    <numerusform>تُقصَّر %1 نغمة إلى أطول مدة.</numerusform>
   </translation>
  </message>
  <message id="toneLostPressure" numerus="yes">
   <source>%1 changes of key pressure are ignored.</source>
   <translation type="unfinished">
    <numerusform>يُتجاهل %1 تغيير في ضغط المفاتيح.</numerusform>
    <numerusform>يُتجاهل %1 تغيير في ضغط المفاتيح.</numerusform>
    <numerusform>يُتجاهل %1 تغييران في ضغط المفاتيح.</numerusform>
    <numerusform>يُتجاهل %1 تغييرات في ضغط المفاتيح.</numerusform>
    <numerusform>يُتجاهل %1 تغييرًا في ضغط المفاتيح.</numerusform>
    <numerusform>يُتجاهل %1 تغيير في ضغط المفاتيح.</numerusform>
   </translation>
  </message>
  <message id="toneLostBank" numerus="yes">
   <source>%1 choices of special voices are ignored.</source>
   <translation type="unfinished">
    <numerusform>يُتجاهل %1 اختيار لأصوات خاصة.</numerusform>
    <numerusform>يُتجاهل %1 اختيار لأصوات خاصة.</numerusform>
    <numerusform>يُتجاهل %1 اختياران لأصوات خاصة.</numerusform>
    <numerusform>يُتجاهل %1 اختيارات لأصوات خاصة.</numerusform>
    <numerusform>يُتجاهل %1 اختيارًا لأصوات خاصة.</numerusform>
    <numerusform>يُتجاهل %1 اختيار لأصوات خاصة.</numerusform>
   </translation>
  </message>
  <message id="toneLostKit" numerus="yes">
   <source>%1 choices of a drum kit are ignored.</source>
   <translation type="unfinished">
    <numerusform>يُتجاهل %1 اختيار لطقم طبول.</numerusform>
    <numerusform>يُتجاهل %1 اختيار لطقم طبول.</numerusform>
    <numerusform>يُتجاهل %1 اختياران لطقم طبول.</numerusform>
    <numerusform>يُتجاهل %1 اختيارات لطقم طبول.</numerusform>
    <numerusform>يُتجاهل %1 اختيارًا لطقم طبول.</numerusform>
    <numerusform>يُتجاهل %1 اختيار لطقم طبول.</numerusform>
   </translation>
  </message>
  <message id="toneLostParameter" numerus="yes">
   <source>%1 special settings of channels are ignored.</source>
   <translation type="unfinished">
    <numerusform>يُتجاهل %1 ضبط خاص بالقنوات.</numerusform>
    <numerusform>يُتجاهل %1 ضبط خاص بالقنوات.</numerusform>
    <numerusform>يُتجاهل %1 ضبطان خاص بالقنوات.</numerusform>
    <numerusform>يُتجاهل %1 ضبوط خاص بالقنوات.</numerusform>
    <numerusform>يُتجاهل %1 ضبطًا خاص بالقنوات.</numerusform>
    <numerusform>يُتجاهل %1 ضبط خاص بالقنوات.</numerusform>
   </translation>
  </message>
  <message id="toneLostControl" numerus="yes">
   <source>%1 controls that the handset does not know are ignored.</source>
   <translation type="unfinished">
    <numerusform>يُتجاهل %1 متحكم لا يعرفها الهاتف.</numerusform>
    <numerusform>يُتجاهل %1 متحكم لا يعرفها الهاتف.</numerusform>
    <numerusform>يُتجاهل %1 متحكمان لا يعرفها الهاتف.</numerusform>
    <numerusform>يُتجاهل %1 متحكمات لا يعرفها الهاتف.</numerusform>
    <numerusform>يُتجاهل %1 متحكمًا لا يعرفها الهاتف.</numerusform>
    <numerusform>يُتجاهل %1 متحكم لا يعرفها الهاتف.</numerusform>
   </translation>
  </message>
  <message id="toneLostExclusive" numerus="yes">
   <source>%1 messages for one make of instrument are ignored.</source>
   <translation type="unfinished">
    <numerusform>تُتجاهل %1 رسالة لآلات صانع بعينه.</numerusform>
    <numerusform>تُتجاهل %1 رسالة لآلات صانع بعينه.</numerusform>
    <numerusform>تُتجاهل %1 رسالتان لآلات صانع بعينه.</numerusform>
    <numerusform>تُتجاهل %1 رسائل لآلات صانع بعينه.</numerusform>
    <numerusform>تُتجاهل %1 رسالة لآلات صانع بعينه.</numerusform>
    <numerusform>تُتجاهل %1 رسالة لآلات صانع بعينه.</numerusform>
   </translation>
  </message>
  <message id="toneLostTempo" numerus="yes">
   <source>%1 changes of tempo make no sense and are ignored.</source>
   <translation type="unfinished">
    <numerusform>يُتجاهل %1 تغيير للسرعة بلا معنى.</numerusform>
    <numerusform>يُتجاهل %1 تغيير للسرعة بلا معنى.</numerusform>
    <numerusform>يُتجاهل %1 تغييران للسرعة بلا معنى.</numerusform>
    <numerusform>يُتجاهل %1 تغييرات للسرعة بلا معنى.</numerusform>
    <numerusform>يُتجاهل %1 تغييرًا للسرعة بلا معنى.</numerusform>
    <numerusform>يُتجاهل %1 تغيير للسرعة بلا معنى.</numerusform>
   </translation>
  </message>
  <message id="toneLostAfterEnd" numerus="yes">
   <source>%1 events after 24 hours are left out.</source>
   <translation type="unfinished">
    <numerusform>يُحذف %1 حدث بعد 24 ساعة.</numerusform>
    <numerusform>يُحذف %1 حدث بعد 24 ساعة.</numerusform>
    <numerusform>يُحذف %1 حدثان بعد 24 ساعة.</numerusform>
    <numerusform>يُحذف %1 أحداث بعد 24 ساعة.</numerusform>
    <numerusform>يُحذف %1 حدثًا بعد 24 ساعة.</numerusform>
    <numerusform>يُحذف %1 حدث بعد 24 ساعة.</numerusform>
   </translation>
  </message>
  <message id="toneLostTracks" numerus="yes">
   <source>%1 tracks are damaged and break off.</source>
   <translation type="unfinished">
    <numerusform>%1 مسار تالفة تنقطع.</numerusform>
    <numerusform>%1 مسار تالفة تنقطع.</numerusform>
    <numerusform>%1 مساران تالفة تنقطع.</numerusform>
    <numerusform>%1 مسارات تالفة تنقطع.</numerusform>
    <numerusform>%1 مسارًا تالفة تنقطع.</numerusform>
    <numerusform>%1 مسار تالفة تنقطع.</numerusform>
   </translation>
  </message>
  <message id="toneLostSongs" numerus="yes">
   <source>%1 further songs of the file are left out.</source>
   <translation type="unfinished">
    <numerusform>يُحذف %1 لحن آخر من الملف.</numerusform>
    <numerusform>يُحذف %1 لحن آخر من الملف.</numerusform>
    <numerusform>يُحذف %1 لحنان آخر من الملف.</numerusform>
    <numerusform>يُحذف %1 ألحان آخر من الملف.</numerusform>
    <numerusform>يُحذف %1 لحنًا آخر من الملف.</numerusform>
    <numerusform>يُحذف %1 لحن آخر من الملف.</numerusform>
   </translation>
  </message>
  <message id="toneLostRate">
   <source>Every second sample is left out: the sound becomes duller.</source>
   <translation type="unfinished">تُحذف عيّنة من كل عيّنتين، فيصير الصوت أقل صفاءً.</translation>
  </message>
  <message id="toneLostFine">
   <source>The recording is stored with 4 bits a sample: it sounds somewhat rougher.</source>
   <translation type="unfinished">يُحفظ التسجيل بأربع بتات لكل عيّنة، فيصير أخشن قليلًا.</translation>
  </message>
  <message id="toneNotesUnused">
   <source>The notes were not adapted to the handset first: %1</source>
   <translation type="unfinished">لم تُكيَّف النغمات للهاتف أولًا: %1</translation>
  </message>
  <message id="toneNotesFailed">
   <source>The notes could not be adapted to the handset first.</source>
   <translation type="unfinished">تعذّر تكييف النغمات للهاتف أولًا.</translation>
  </message>
  <message id="toneMustBe">
   <source>A recording must have 16 bits, one channel, and 4,000 or 8,000 Hz. This one has %1.</source>
   <translation type="unfinished">يجب أن يكون التسجيل من 16 بت وقناة واحدة و 4000 أو 8000 هرتز. وهذا: %1.</translation>
  </message>
  <message id="toneEmpty">
   <source>There is no sound in it.</source>
   <translation type="unfinished">لا صوت فيه.</translation>
  </message>
  <message id="toneTooLongTrack">
   <source>The recording is too long for a ring tone.</source>
   <translation type="unfinished">التسجيل أطول مما تسعه نغمة رنين.</translation>
  </message>
  <message id="toneNotConverted">
   <source>%1</source>
   <translation type="unfinished">%1</translation>
  </message>
  <message id="toneMaking" numerus="yes">
   <source>Converting %1 files for the handset</source>
   <translation type="unfinished">
    <numerusform>جارٍ تحويل %1 ملف للهاتف</numerusform>
    <numerusform>جارٍ تحويل %1 ملف للهاتف</numerusform>
    <numerusform>جارٍ تحويل %1 ملفين للهاتف</numerusform>
    <numerusform>جارٍ تحويل %1 ملفات للهاتف</numerusform>
    <numerusform>جارٍ تحويل %1 ملفًا للهاتف</numerusform>
    <numerusform>جارٍ تحويل %1 ملف للهاتف</numerusform>
   </translation>
  </message>
  <message id="toneNotMade" numerus="yes">
   <source>%1 files could not be converted</source>
   <translation type="unfinished">
    <numerusform>تعذّر تحويل %1 ملف</numerusform>
    <numerusform>تعذّر تحويل %1 ملف</numerusform>
    <numerusform>تعذّر تحويل %1 ملفين</numerusform>
    <numerusform>تعذّر تحويل %1 ملفات</numerusform>
    <numerusform>تعذّر تحويل %1 ملفًا</numerusform>
    <numerusform>تعذّر تحويل %1 ملف</numerusform>
   </translation>
  </message>
  <message id="toneUndo" numerus="yes">
   <source>Undo Conversion of %1 Items</source>
   <translation type="unfinished">
    <numerusform>تراجع عن تحويل %1 عنصر</numerusform>
    <numerusform>تراجع عن تحويل %1 عنصر</numerusform>
    <numerusform>تراجع عن تحويل %1 عنصرين</numerusform>
    <numerusform>تراجع عن تحويل %1 عناصر</numerusform>
    <numerusform>تراجع عن تحويل %1 عنصرًا</numerusform>
    <numerusform>تراجع عن تحويل %1 عنصر</numerusform>
   </translation>
  </message>
  <message id="toneUndoName">
   <source>Undo Conversion of “%1”</source>
   <translation type="unfinished">تراجع عن تحويل «%1»</translation>
  </message>
  <message id="viewerBack">
   <source>Back to the thumbnails</source>
   <translation type="unfinished">العودة إلى الصور المصغرة</translation>
  </message>
  <message id="viewerPrevious">
   <source>Previous picture</source>
   <translation type="unfinished">الصورة السابقة</translation>
  </message>
  <message id="viewerNext">
   <source>Next picture</source>
   <translation type="unfinished">الصورة التالية</translation>
  </message>
  <message id="viewerZoomOut">
   <source>Smaller</source>
   <translation type="unfinished">أصغر</translation>
  </message>
  <message id="viewerZoomIn">
   <source>Larger</source>
   <translation type="unfinished">أكبر</translation>
  </message>
  <message id="viewerWhole">
   <source>Whole picture</source>
   <translation type="unfinished">الصورة كاملة</translation>
  </message>
  <message id="viewerPixels">
   <source>Actual pixels</source>
   <translation type="unfinished">البكسلات الفعلية</translation>
  </message>
  <message id="viewerFullScreen">
   <source>Full screen</source>
   <translation type="unfinished">ملء الشاشة</translation>
  </message>
  <message id="viewerLeaveFullScreen">
   <source>Leave full screen</source>
   <translation type="unfinished">مغادرة ملء الشاشة</translation>
  </message>
  <message id="viewerPlay">
   <source>Play the clip</source>
   <translation type="unfinished">تشغيل المقطع</translation>
  </message>
  <message id="viewerTip">
   <source>%1 (%2)</source>
   <translation type="unfinished">%1 (%2)</translation>
  </message>
  <message id="viewerPosition">
   <source>%1 of %2</source>
   <translation type="unfinished">%1 من %2</translation>
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
   <translation type="unfinished">تُعرض ببكسلات أقل</translation>
  </message>
  <message id="viewerName">
   <source>%1, %2</source>
   <translation type="unfinished">%1، %2</translation>
  </message>
  <message id="viewerClipName">
   <source>%1, clip, %2</source>
   <translation type="unfinished">%1، مقطع، %2</translation>
  </message>
  <message id="viewerBrokenName">
   <source>%1, cannot be shown, %2</source>
   <translation type="unfinished">%1، لا يمكن عرضها، %2</translation>
  </message>
  <message id="viewerBroken">
   <source>This picture cannot be shown</source>
   <translation type="unfinished">لا يمكن عرض هذه الصورة</translation>
  </message>
  <message id="viewerBrokenClip">
   <source>There is no picture of this clip</source>
   <translation type="unfinished">لا توجد صورة لهذا المقطع</translation>
  </message>
  <message id="viewerShow">
   <source>Slide show</source>
   <translation type="unfinished">عرض شرائح</translation>
  </message>
  <message id="viewerShowPaused">
   <source>Paused</source>
   <translation type="unfinished">متوقف</translation>
  </message>
  <message id="viewerShowRuns">
   <source>A slide show is running</source>
   <translation type="unfinished">يجري عرض شرائح</translation>
  </message>
  <message id="watchNotFollowed">
   <source>Changes are not followed</source>
   <translation type="unfinished">لا تُتابَع التغييرات</translation>
  </message>
  <message id="watchNotFollowedTip">
   <source>What other programs change in this folder does not show by itself. Press F5 to read it again.</source>
   <translation type="unfinished">ما تغيره البرامج الأخرى في هذا المجلد لا يظهر تلقائياً. اضغط F5 لقراءته من جديد.</translation>
  </message>
 </context>
</TS>
