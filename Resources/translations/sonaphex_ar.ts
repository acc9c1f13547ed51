<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AcceptDragImageView</name>
    <message>
        <source>Cover</source>
        <translation>الغلاف</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>لا صورة</translation>
    </message>
    <message>
        <source>A picture; Delete removes it</source>
        <translation>صورة؛ يزيلها مفتاح Delete</translation>
    </message>
</context>
<context>
    <name>Alerts</name>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
</context>
<context>
    <name>Announcement</name>
    <message>
        <source>Announcements</source>
        <translation>الإعلانات</translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>لا يمكن فتح الملف.</translation>
    </message>
    <message>
        <source>it is already running</source>
        <translation>إنه يعمل بالفعل</translation>
    </message>
</context>
<context>
    <name>Audio</name>
    <message>
        <source>the device is not there</source>
        <translation>الجهاز غير موجود</translation>
    </message>
    <message>
        <source>the sound server refused to capture the device</source>
        <translation>رفض خادوم الصوت الالتقاط من الجهاز</translation>
    </message>
    <message>
        <source>%1 is not installed: no sound server answers and none can be started</source>
        <translation>%1 غير مثبّت: لا يستجيب أي خادوم صوت ولا يمكن تشغيل واحد</translation>
    </message>
    <message>
        <source>the private sound server did not start</source>
        <translation>لم يبدأ خادوم الصوت الخاص</translation>
    </message>
    <message>
        <source>the private sound server came up without its devices</source>
        <translation>بدأ خادوم الصوت الخاص من دون أجهزته</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>لا يستجيب أي خادوم صوت: %1</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>اختفى خادوم الصوت</translation>
    </message>
    <message>
        <source>this unit captures only</source>
        <translation>هذه الوحدة للالتقاط فقط</translation>
    </message>
    <message>
        <source>the unit is running</source>
        <translation>الوحدة تعمل</translation>
    </message>
    <message>
        <source>there is no device number %1</source>
        <translation>لا جهاز برقم %1</translation>
    </message>
    <message>
        <source>%1 has no input</source>
        <translation>ليس لدى %1 إدخال</translation>
    </message>
    <message>
        <source>no device is set</source>
        <translation>لم يُحدَّد جهاز</translation>
    </message>
    <message>
        <source>the unit delivers 32-bit float, one buffer a channel, at the device&apos;s rate only</source>
        <translation>لا تسلّم الوحدة إلا أعدادًا عائمة بطول 32 بت، بمخزن مؤقت لكل قناة، وبمعدل الجهاز فقط</translation>
    </message>
    <message>
        <source>no device or no callback is set</source>
        <translation>لم يُحدَّد جهاز أو دالة رد نداء</translation>
    </message>
    <message>
        <source>the input is not enabled</source>
        <translation>الإدخال غير مفعّل</translation>
    </message>
    <message>
        <source>the unit is not initialised</source>
        <translation>الوحدة غير مهيّأة</translation>
    </message>
    <message>
        <source>the sound server accepts connections but does not answer. Restart it (systemctl --user restart pipewire) and try again</source>
        <translation>يقبل خادوم الصوت الاتصالات لكنه لا يستجيب. أعد تشغيله (systemctl --user restart pipewire) وحاول من جديد</translation>
    </message>
    <message>
        <source>the stream failed</source>
        <translation>فشل الدفق</translation>
    </message>
    <message>
        <source>the device went away</source>
        <translation>اختفى الجهاز</translation>
    </message>
    <message>
        <source>no sound server answers: a private one was started, its input device is a tone</source>
        <translation>لا يستجيب أي خادوم صوت: بدأ تشغيل خادوم خاص، وجهاز إدخاله نغمة اختبار</translation>
    </message>
</context>
<context>
    <name>AudioDataSourceView</name>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation>&amp;ضع علامة أو أزلها</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>انقل لأ&amp;على</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>انقل لأ&amp;سفل</translation>
    </message>
    <message>
        <source>&amp;Remove from This List</source>
        <translation>أ&amp;زل من هذه القائمة</translation>
    </message>
    <message>
        <source>The file itself stays</source>
        <translation>يبقى الملف نفسه</translation>
    </message>
    <message>
        <source>No music yet. Press “Add Files…” or drop sound files here.</source>
        <translation>لا موسيقى بعد. اضغط «أضف ملفات…» أو أفلِت ملفات صوت هنا.</translation>
    </message>
</context>
<context>
    <name>AudioEditTimeView</name>
    <message>
        <source>Play position</source>
        <translation>موضع التشغيل</translation>
    </message>
</context>
<context>
    <name>AudioFilterController</name>
    <message>
        <source>Short Recordings</source>
        <translation>التسجيلات القصيرة</translation>
    </message>
    <message>
        <source>Recordings of at &amp;most</source>
        <translation>تسجيلات لا ت&amp;زيد على</translation>
    </message>
    <message>
        <source>0 shows every recording.</source>
        <translation>يعرض 0 كل التسجيلات.</translation>
    </message>
    <message>
        <source>Recordings of at most this many seconds</source>
        <translation>تسجيلات لا تزيد على هذا العدد من الثواني</translation>
    </message>
    <message>
        <source> seconds</source>
        <translation> ثانية</translation>
    </message>
    <message>
        <source>Short recordings</source>
        <translation>التسجيلات القصيرة</translation>
    </message>
    <message>
        <source>Ticked recordings</source>
        <translation>التسجيلات المعلَّمة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;أزل</translation>
    </message>
    <message>
        <source>%1 ticked, %2</source>
        <translation>المعلَّمة: %1، %2</translation>
    </message>
    <message>
        <source>Do you want to move these items to the trash?</source>
        <translation>أتريد نقل هذه العناصر إلى المهملات؟</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>أزل</translation>
    </message>
</context>
<context>
    <name>AudioPlayProgressView</name>
    <message>
        <source>Playback position</source>
        <translation>موضع التشغيل</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>AudioPointerLineView</name>
    <message>
        <source>Play pointer</source>
        <translation>مؤشر التشغيل</translation>
    </message>
</context>
<context>
    <name>AudioRecordWaveView</name>
    <message>
        <source>Recording level</source>
        <translation>مستوى التسجيل</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %, clipped</source>
        <translation>%1 %، مع قصّ الذرى</translation>
    </message>
</context>
<context>
    <name>AudioRowDelegate</name>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
</context>
<context>
    <name>AudioTableModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>لم يعد الملف موجودًا.</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>قيد التشغيل</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>الفنان</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>الألبوم</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>المسار</translation>
    </message>
    <message>
        <source>No mark</source>
        <translation>بلا علامة</translation>
    </message>
</context>
<context>
    <name>AudioTrimEditView</name>
    <message>
        <source>Range to keep</source>
        <translation>النطاق المُبقى</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>موضع التشغيل</translation>
    </message>
    <message>
        <source>Begin of the range to keep</source>
        <translation>بداية الجزء المُبقى</translation>
    </message>
    <message>
        <source>End of the range to keep</source>
        <translation>نهاية الجزء المُبقى</translation>
    </message>
</context>
<context>
    <name>AudioTrimSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>لم يعد الملف «%1» موجودًا.</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>ما زال التسجيل جاريًا في الملف «%1».</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>النطاق أقصر من عُشر ثانية.</translation>
    </message>
    <message>
        <source>There is no room left on the disk.</source>
        <translation>لم تبق مساحة على القرص.</translation>
    </message>
    <message>
        <source>The tags could not be written.</source>
        <translation>تعذّرت كتابة الوسوم.</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>الملف الجديد</translation>
    </message>
    <message>
        <source>It was stopped before the end.</source>
        <translation>أُوقف قبل النهاية.</translation>
    </message>
</context>
<context>
    <name>AudioTrimWnd</name>
    <message>
        <source>Trim</source>
        <translation>تشذيب</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>زمن التشغيل</translation>
    </message>
    <message>
        <source>Begin of the range</source>
        <translation>بداية النطاق</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>طول النطاق</translation>
    </message>
    <message>
        <source>End of the range</source>
        <translation>نهاية النطاق</translation>
    </message>
    <message>
        <source>Set here</source>
        <translation>عيّن هنا</translation>
    </message>
    <message>
        <source>Move the begin of the range to the play position</source>
        <translation>انقل بداية النطاق إلى موضع التشغيل</translation>
    </message>
    <message>
        <source>Move the end of the range to the play position</source>
        <translation>انقل نهاية النطاق إلى موضع التشغيل</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
    <message>
        <source>P&amp;review</source>
        <translation>م&amp;عاينة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>احفظ &amp;باسم…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>ا&amp;حفظ</translation>
    </message>
</context>
<context>
    <name>AudioTrimWndController</name>
    <message>
        <source>Pause</source>
        <translation>ألبِث</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
    <message>
        <source>The range is shorter than a tenth of a second.</source>
        <translation>النطاق أقصر من عُشر ثانية.</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>الملف قيد التشغيل.</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>لا يمكن حفظ التسجيل.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>احفظ باسم</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>لم يُحفظ التسجيل.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>تحذير:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>تحذير:</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>هذا المسار موجود، يُرجى تغيير المسار أو الاسم.</translation>
    </message>
    <message>
        <source>Converting Audio......</source>
        <translation>يجري تحويل الصوت......</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; audio file.</source>
        <translation>أتريد استبدال ملف الصوت «%1»؟</translation>
    </message>
</context>
<context>
    <name>AudioWaveEditView</name>
    <message>
        <source>Outline</source>
        <translation>رسم الموجة</translation>
    </message>
</context>
<context>
    <name>AudioWaveTrimView</name>
    <message>
        <source>Selection</source>
        <translation>التحديد</translation>
    </message>
    <message>
        <source>Drag the edges or the middle. Left and Right move the selection, with Control its begin, with Alt its end; with Shift by a second.</source>
        <translation>اسحب الحافتين أو الوسط. يحرّك السهمان الأيسر والأيمن التحديد، ومع Control بدايته، ومع Alt نهايته؛ ومع Shift بمقدار ثانية.</translation>
    </message>
    <message>
        <source>from %1 to %2, %3 seconds</source>
        <translation>من %1 إلى %2، %3 ثانية</translation>
    </message>
</context>
<context>
    <name>AudioWaveViewController</name>
    <message>
        <source>Recording state</source>
        <translation>حالة التسجيل</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>الإدخال</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>الفنان</translation>
    </message>
    <message>
        <source>Switch between recording and playback</source>
        <translation>بدّل بين التسجيل والتشغيل</translation>
    </message>
    <message>
        <source>Show the next notice</source>
        <translation>اعرض التنبيه التالي</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>تنبيه</translation>
    </message>
    <message>
        <source>What can be done about the notice</source>
        <translation>ما يمكن فعله بشأن التنبيه</translation>
    </message>
    <message>
        <source>Dismiss this notice</source>
        <translation>استبعد هذا التنبيه</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>اعرض</translation>
    </message>
    <message>
        <source>Choose Device</source>
        <translation>اختر جهازًا</translation>
    </message>
    <message>
        <source>Unmute</source>
        <translation>ألغِ الكتم</translation>
    </message>
    <message>
        <source>Free Space …</source>
        <translation>أفرِغ مساحة …</translation>
    </message>
    <message>
        <source>Notice %1 of %2. Show the next one</source>
        <translation>التنبيه %1 من %2. اعرض التالي</translation>
    </message>
    <message>
        <source>Recording time</source>
        <translation>مدة التسجيل</translation>
    </message>
    <message>
        <source>Played</source>
        <translation>ما شُغِّل</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>المتبقي</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>في انتظار أول صوت</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>جارٍ التسجيل</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>لا يُسجَّل شيء</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>يجري إنهاء التسجيل</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>لا تسجيل</translation>
    </message>
</context>
<context>
    <name>BalanceSave</name>
    <message>
        <source>It was stopped before the end.</source>
        <translation>أُوقف قبل النهاية.</translation>
    </message>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>لم يعد الملف «%1» موجودًا.</translation>
    </message>
    <message>
        <source>The file “%1” is still being recorded to.</source>
        <translation>ما زال التسجيل جاريًا في الملف «%1».</translation>
    </message>
    <message>
        <source>The sum of both tracks is too loud and would be clipped.</source>
        <translation>مجموع المسارين أعلى صوتًا مما ينبغي وستُقصّ ذراه.</translation>
    </message>
    <message>
        <source>the new file</source>
        <translation>الملف الجديد</translation>
    </message>
</context>
<context>
    <name>BalanceView</name>
    <message>
        <source>Play position</source>
        <translation>موضع التشغيل</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>الإدخال</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>صوت الحاسوب</translation>
    </message>
</context>
<context>
    <name>BalanceWnd</name>
    <message>
        <source>Balance</source>
        <translation>موازنة</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>زمن التشغيل</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>الإد&amp;خال</translation>
    </message>
    <message>
        <source>Gain of the input</source>
        <translation>كسب الإدخال</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> ديسيبل</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>&amp;صوت الحاسوب</translation>
    </message>
    <message>
        <source>Gain of computer audio</source>
        <translation>كسب صوت الحاسوب</translation>
    </message>
    <message>
        <source>&amp;Delay of computer audio</source>
        <translation>&amp;تأخير صوت الحاسوب</translation>
    </message>
    <message>
        <source>Delay of computer audio</source>
        <translation>تأخير صوت الحاسوب</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> م.ث</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>علوّ الصوت</translation>
    </message>
    <message>
        <source>&amp;Lower to Fit</source>
        <translation>اخ&amp;فض بما يكفي</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>أعِد ال&amp;ضبط</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>احفظ &amp;باسم…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>ا&amp;حفظ</translation>
    </message>
</context>
<context>
    <name>BalanceWndController</name>
    <message>
        <source>Silent</source>
        <comment>a track that is not in the mix</comment>
        <translation>صامت</translation>
    </message>
    <message>
        <source>The tracks cannot be played.</source>
        <translation>لا يمكن تشغيل المسارين.</translation>
    </message>
    <message>
        <source>Both gains and the delay are 0.</source>
        <translation>قيم الكسبين والتأخير كلها 0.</translation>
    </message>
    <message>
        <source>Measuring the loudest point …</source>
        <translation>يجري قياس أعلى نقطة …</translation>
    </message>
    <message>
        <source>Too loud by %1 dB: the loudest parts would be clipped.</source>
        <translation>الصوت أعلى من الحد بـ %1 ديسيبل: ستُقصّ ذرى أعلى الأجزاء.</translation>
    </message>
    <message>
        <source>The mix is silent.</source>
        <translation>المزيج صامت.</translation>
    </message>
    <message>
        <source>Loudest point: %1 dB below the limit</source>
        <translation>أعلى نقطة: دون الحد بـ %1 ديسيبل</translation>
    </message>
    <message>
        <source>Lowers both gains until nothing is clipped</source>
        <translation>يخفض الكسبين حتى لا تُقصّ أي ذروة</translation>
    </message>
    <message>
        <source>Nothing would be clipped.</source>
        <translation>لن تُقصّ أي ذروة.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>ألبِث</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
    <message>
        <source>The file is being played.</source>
        <translation>الملف قيد التشغيل.</translation>
    </message>
    <message>
        <source>The recording cannot be saved.</source>
        <translation>لا يمكن حفظ التسجيل.</translation>
    </message>
    <message>
        <source>Do you want to replace &quot;%1&quot; with the new mix? Its tracks stay.</source>
        <translation>أتريد أن يحل المزيج الجديد محل «%1»؟ يبقى مساراه على حالهما.</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>تحذير:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>احفظ باسم</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>هذا المسار موجود، يُرجى تغيير المسار أو الاسم.</translation>
    </message>
    <message>
        <source>Lower Both by %1 dB</source>
        <translation>اخفض كليهما بـ %1 ديسيبل</translation>
    </message>
    <message>
        <source>The mix is too loud.</source>
        <translation>صوت المزيج أعلى مما ينبغي.</translation>
    </message>
    <message>
        <source>Its loudest parts would be clipped. Lower both gains, and nothing is clipped.</source>
        <translation>ستُقصّ ذرى أعلى أجزائه. اخفض الكسبين فلا تُقصّ أي ذروة.</translation>
    </message>
    <message>
        <source>The recording was not saved.</source>
        <translation>لم يُحفظ التسجيل.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>The new mix is saved.</source>
        <translation>حُفظ المزيج الجديد.</translation>
    </message>
</context>
<context>
    <name>BurnControl</name>
    <message>
        <source>there is no drive</source>
        <translation>لا سوّاقة</translation>
    </message>
</context>
<context>
    <name>BurnState</name>
    <message>
        <source>Waiting for the import Music File</source>
        <translation>في انتظار إضافة ملفات الموسيقى</translation>
    </message>
    <message>
        <source>Waiting for the inserted Disc</source>
        <translation>في انتظار إدراج القرص</translation>
    </message>
    <message>
        <source>Is not blank, Please erase the Disc</source>
        <translation>ليس فارغًا، يُرجى مسح القرص</translation>
    </message>
    <message>
        <source>Is not blank, Please replace the Disc</source>
        <translation>ليس فارغًا، يُرجى تبديل القرص</translation>
    </message>
    <message>
        <source>Disc space not enough for music</source>
        <translation>مساحة القرص لا تكفي للموسيقى</translation>
    </message>
    <message>
        <source>Ready to burn</source>
        <translation>جاهز للحرق</translation>
    </message>
</context>
<context>
    <name>CDBurnWnd</name>
    <message>
        <source>Burn to Disc</source>
        <translation>الحرق على قرص</translation>
    </message>
    <message>
        <source>&amp;Drive:</source>
        <translation>السوّا&amp;قة:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>السوّاقة</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>أخرِج القرص</translation>
    </message>
    <message>
        <source>Problem of the drive</source>
        <translation>مشكلة في السوّاقة</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>المقطوعات</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>أ&amp;ضف ملفات…</translation>
    </message>
    <message>
        <source>Items and size</source>
        <translation>العناصر والحجم</translation>
    </message>
    <message>
        <source>Total time</source>
        <translation>المدة الكلية</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>&amp;Eject when done</source>
        <translation>أ&amp;خرِج عند الانتهاء</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>ا&amp;حرق</translation>
    </message>
</context>
<context>
    <name>CDBurnWndController</name>
    <message>
        <source>There is nothing to burn.</source>
        <translation>لا شيء لحرقه.</translation>
    </message>
    <message>
        <source>Tick the files that are to become tracks, then press Burn.</source>
        <translation>ضع علامة على الملفات التي ستصير مقطوعات ثم اضغط «احرق».</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>المدة: %1</translation>
    </message>
    <message>
        <source>Eject the disc</source>
        <translation>أخرِج القرص</translation>
    </message>
    <message>
        <source>There is no disc in the drive.</source>
        <translation>لا قرص في السوّاقة.</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>اختر</translation>
    </message>
    <message numerus="yes">
        <source> %n Items     Size: %1 MB</source>
        <translation>
            <numerusform> لا عناصر     الحجم: %1 م.بايت</numerusform>
            <numerusform> عنصر واحد     الحجم: %1 م.بايت</numerusform>
            <numerusform> عنصران     الحجم: %1 م.بايت</numerusform>
            <numerusform> %n عناصر     الحجم: %1 م.بايت</numerusform>
            <numerusform> %n عنصرًا     الحجم: %1 م.بايت</numerusform>
            <numerusform> %n عنصر     الحجم: %1 م.بايت</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CaptureComputerAudio</name>
    <message>
        <source>%1: the driver does not run on this machine</source>
        <translation>%1: لا يعمل برنامج التشغيل على هذا الحاسوب</translation>
    </message>
    <message>
        <source>%1: no such program</source>
        <translation>%1: لا برنامج بهذا الاسم</translation>
    </message>
    <message>
        <source>the driver was started, but its device did not appear</source>
        <translation>بدأ برنامج التشغيل لكن جهازه لم يظهر</translation>
    </message>
    <message>
        <source>the system audio device is being installed or removed already</source>
        <translation>تثبيت جهاز صوت النظام أو إزالته جارٍ بالفعل</translation>
    </message>
    <message>
        <source>there is no way to get administrator rights</source>
        <translation>لا سبيل إلى الحصول على صلاحيات المدير</translation>
    </message>
    <message>
        <source>%1: the driver is missing from the program&apos;s resources</source>
        <translation>%1: برنامج التشغيل ناقص من موارد البرنامج</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--%1: %2 is not a time in seconds</source>
        <translation>--%1: %2 ليس زمنًا بالثواني</translation>
    </message>
    <message>
        <source>--%1: %2 is not a whole number</source>
        <translation>--%1: %2 ليس عددًا صحيحًا</translation>
    </message>
    <message>
        <source>there is no drive that writes discs (--image FILE writes a disc image)</source>
        <translation>لا سوّاقة تكتب الأقراص (--image FILE يكتب صورة قرص)</translation>
    </message>
    <message>
        <source>%1: there is no such drive (&quot;sonaphex drives&quot; lists them)</source>
        <translation>%1: لا سوّاقة بهذا الاسم (يسردها «sonaphex drives»)</translation>
    </message>
    <message>
        <source>%1: the drive is busy</source>
        <translation>%1: السوّاقة مشغولة</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1: لا قرص في السوّاقة</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: erase it, or put another one in</source>
        <translation>%1: القرص ليس فارغًا: امسحه أو ضع قرصًا آخر</translation>
    </message>
    <message>
        <source>%1: the disc is not blank: put another one in</source>
        <translation>%1: القرص ليس فارغًا: ضع قرصًا آخر</translation>
    </message>
    <message>
        <source>%1: no burn can be made with this drive</source>
        <translation>%1: لا يمكن الحرق بهذه السوّاقة</translation>
    </message>
    <message>
        <source>%1; nothing was burned</source>
        <translation>%1؛ لم يُحرق شيء</translation>
    </message>
    <message>
        <source>the burn failed</source>
        <translation>فشل الحرق</translation>
    </message>
    <message>
        <source>burn takes the files that become tracks</source>
        <translation>يتطلب burn الملفات التي ستصير مقطوعات</translation>
    </message>
    <message>
        <source>--image takes the name of a file</source>
        <translation>يتطلب --image اسم ملف</translation>
    </message>
    <message>
        <source>--image and --drive exclude each other</source>
        <translation>لا يجتمع --image و --drive</translation>
    </message>
    <message>
        <source>burn sound files as an audio CD, one track each, or write a disc image</source>
        <translation>حرق ملفات صوت كقرص صوتي، كل ملف في مقطوعة، أو كتابة صورة قرص</translation>
    </message>
    <message>
        <source>The drive, by its name or its path (&quot;sonaphex drives&quot; lists them).</source>
        <translation>السوّاقة، باسمها أو بمسارها (يسردها «sonaphex drives»).</translation>
    </message>
    <message>
        <source>the first drive</source>
        <translation>السوّاقة الأولى</translation>
    </message>
    <message>
        <source>Write FILE.cue and FILE.bin instead of a disc. Existing files are never replaced.</source>
        <translation>اكتب FILE.cue و FILE.bin بدلًا من قرص. لا تُستبدل الملفات الموجودة أبدًا.</translation>
    </message>
    <message>
        <source>Eject the disc when it is done.</source>
        <translation>أخرِج القرص عند الانتهاء.</translation>
    </message>
    <message>
        <source>Burn two tracks and eject the disc.</source>
        <translation>احرق مقطوعتين وأخرِج القرص.</translation>
    </message>
    <message>
        <source>Write concert.cue and concert.bin.</source>
        <translation>اكتب concert.cue و concert.bin.</translation>
    </message>
    <message>
        <source>%1 (default: %2)</source>
        <translation>%1 (المبدئي: %2)</translation>
    </message>
    <message>
        <source>usage: sonaphex %1</source>
        <translation>الاستخدام: sonaphex %1</translation>
    </message>
    <message>
        <source>options:</source>
        <translation>الخيارات:</translation>
    </message>
    <message>
        <source>examples:</source>
        <translation>أمثلة:</translation>
    </message>
    <message>
        <source>usage: sonaphex            open the window
       sonaphex FILE       open the window and trim an audio file
       sonaphex COMMAND    do one thing and end

commands:
</source>
        <translation>الاستخدام: sonaphex            فتح النافذة
           sonaphex FILE       فتح النافذة وتشذيب ملف صوت
           sonaphex COMMAND    تنفيذ مهمة واحدة ثم الخروج

الأوامر:
</translation>
    </message>
    <message>
        <source>
&quot;sonaphex COMMAND --help&quot; lists the options of a command, &quot;sonaphex --version&quot; the version.
</source>
        <translation>
يسرد «sonaphex COMMAND --help» خيارات الأمر، ويعرض «sonaphex --version» الإصدار.
</translation>
    </message>
    <message>
        <source>there is no sound server</source>
        <translation>لا خادوم صوت</translation>
    </message>
    <message>
        <source>standard output could not be written: %1</source>
        <translation>تعذّرت الكتابة إلى الخرج القياسي: %1</translation>
    </message>
    <message>
        <source>idle</source>
        <comment>no recording</comment>
        <translation>خامل</translation>
    </message>
    <message>
        <source>armed</source>
        <comment>waits for the first sound</comment>
        <translation>متأهب</translation>
    </message>
    <message>
        <source>recording</source>
        <comment>now</comment>
        <translation>يسجّل</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>مُلبَث</translation>
    </message>
    <message>
        <source>control takes a command</source>
        <translation>يتطلب control أمرًا</translation>
    </message>
    <message>
        <source>%1: no such command</source>
        <translation>%1: لا أمر بهذا الاسم</translation>
    </message>
    <message>
        <source>the program is not running</source>
        <translation>البرنامج لا يعمل</translation>
    </message>
    <message>
        <source>act on the running program</source>
        <translation>التحكم في البرنامج المُشغَّل</translation>
    </message>
    <message>
        <source>Start a recording in the open window, or stop it.</source>
        <translation>ابدأ تسجيلًا في النافذة المفتوحة، أو أوقفه.</translation>
    </message>
    <message>
        <source>Print the state of the running program for a script.</source>
        <translation>اطبع حالة البرنامج المُشغَّل لأجل سكربت.</translation>
    </message>
    <message>
        <source>stopped before the end: nothing was written</source>
        <translation>أُوقف قبل النهاية: لم يُكتب شيء</translation>
    </message>
    <message>
        <source>%1 cannot be converted</source>
        <translation>لا يمكن تحويل %1</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, there is nothing from second %3 on</source>
        <translation>%1: ينتهي عند الثانية %2، ولا شيء ابتداءً من الثانية %3</translation>
    </message>
    <message>
        <source>the source is damaged, what could be read was converted: %1</source>
        <translation>المصدر تالف، وقد حُوِّل ما أمكنت قراءته: %1</translation>
    </message>
    <message>
        <source>convert takes a source and a target</source>
        <translation>يتطلب convert مصدرًا وهدفًا</translation>
    </message>
    <message>
        <source>--type is wav, m4a or caf</source>
        <translation>قيمة --type هي wav أو m4a أو caf</translation>
    </message>
    <message>
        <source>--to is a tenth of a second or more</source>
        <translation>قيمة --to هي عُشر ثانية أو أكثر</translation>
    </message>
    <message>
        <source>--to is before --from</source>
        <translation>--to يسبق --from</translation>
    </message>
    <message>
        <source>copy a range of an audio file into a new file</source>
        <translation>نسخ نطاق من ملف صوت إلى ملف جديد</translation>
    </message>
    <message>
        <source>The type of the new file.</source>
        <translation>نوع الملف الجديد.</translation>
    </message>
    <message>
        <source>from the ending of DST</source>
        <translation>حسب امتداد DST</translation>
    </message>
    <message>
        <source>Begin at second S of the source.</source>
        <translation>ابدأ عند الثانية S من المصدر.</translation>
    </message>
    <message>
        <source>End at second S of the source.</source>
        <translation>انتهِ عند الثانية S من المصدر.</translation>
    </message>
    <message>
        <source>its end</source>
        <translation>نهايته</translation>
    </message>
    <message>
        <source>Fade in over S seconds; a fade shorter than one second is left out.</source>
        <translation>طبّق تصاعدًا تدريجيًا خلال S ثانية؛ ويُهمل ما كان أقصر من ثانية واحدة.</translation>
    </message>
    <message>
        <source>Fade out over S seconds; a fade shorter than one second is left out.</source>
        <translation>طبّق تلاشيًا تدريجيًا خلال S ثانية؛ ويُهمل ما كان أقصر من ثانية واحدة.</translation>
    </message>
    <message>
        <source>Repeat the range until the new file is S seconds long.</source>
        <translation>كرّر النطاق حتى تبلغ مدة الملف الجديد S ثانية.</translation>
    </message>
    <message>
        <source>the length of the range</source>
        <translation>طول النطاق</translation>
    </message>
    <message>
        <source>Replace DST when it exists.</source>
        <translation>استبدل DST إن كان موجودًا.</translation>
    </message>
    <message>
        <source>Copy ten and a half seconds into a WAVE file.</source>
        <translation>انسخ عشر ثوانٍ ونصفًا إلى ملف WAVE.</translation>
    </message>
    <message>
        <source>Repeat ten seconds for half a minute, with fades.</source>
        <translation>كرّر عشر ثوانٍ مدة نصف دقيقة، مع تصاعد وتلاشٍ.</translation>
    </message>
    <message>
        <source>devices takes no names</source>
        <translation>لا يقبل devices أي أسماء</translation>
    </message>
    <message>
        <source>1 channel</source>
        <translation>قناة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n channels</source>
        <translation>
            <numerusform>لا قنوات</numerusform>
            <numerusform>قناة واحدة</numerusform>
            <numerusform>قناتان</numerusform>
            <numerusform>%n قنوات</numerusform>
            <numerusform>%n قناة</numerusform>
            <numerusform>%n قناة</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 Hz, what the computer plays</source>
        <translation>%1، %2 هرتز، ما يشغّله الحاسوب</translation>
    </message>
    <message>
        <source>%1, %2 Hz</source>
        <translation>%1، %2 هرتز</translation>
    </message>
    <message>
        <source>no input devices</source>
        <translation>لا أجهزة إدخال</translation>
    </message>
    <message>
        <source>default output: %1</source>
        <translation>جهاز الإخراج المبدئي: %1</translation>
    </message>
    <message>
        <source>none</source>
        <comment>output device</comment>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>list the input devices</source>
        <translation>سرد أجهزة الإدخال</translation>
    </message>
    <message>
        <source>List the devices for a script.</source>
        <translation>اسرد الأجهزة لأجل سكربت.</translation>
    </message>
    <message>
        <source>installed: %1</source>
        <translation>مثبّت: %1</translation>
    </message>
    <message>
        <source>installed: no</source>
        <translation>مثبّت: لا</translation>
    </message>
    <message>
        <source>loaded: %1</source>
        <translation>محمّل: %1</translation>
    </message>
    <message>
        <source>loaded: no</source>
        <translation>محمّل: لا</translation>
    </message>
    <message>
        <source>loaded: no (no sound server answers)</source>
        <translation>محمّل: لا (لا يستجيب أي خادوم صوت)</translation>
    </message>
    <message>
        <source>the driver stays as it is while the window records: stop the recording first</source>
        <translation>يبقى برنامج التشغيل على حاله ما دامت النافذة تسجّل: أوقف التسجيل أولًا</translation>
    </message>
    <message>
        <source>the driver cannot be loaded: no sound server answers</source>
        <translation>لا يمكن تحميل برنامج التشغيل: لا يستجيب أي خادوم صوت</translation>
    </message>
    <message>
        <source>the driver was not installed: %1</source>
        <translation>لم يُثبَّت برنامج التشغيل: %1</translation>
    </message>
    <message>
        <source>the driver was not removed: %1</source>
        <translation>لم يُزَل برنامج التشغيل: %1</translation>
    </message>
    <message>
        <source>driver takes one of status, install, remove</source>
        <translation>يقبل driver واحدًا من status و install و remove</translation>
    </message>
    <message>
        <source>show, install or remove the device that carries what the computer plays</source>
        <translation>عرض الجهاز الناقل لما يشغّله الحاسوب أو تثبيته أو إزالته</translation>
    </message>
    <message>
        <source>Install the device and load it. Asks for the administrator&apos;s password.</source>
        <translation>ثبّت الجهاز وحمّله. تُطلب كلمة سر المدير.</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>مشغولة</translation>
    </message>
    <message>
        <source>the drive is not ready yet</source>
        <translation>السوّاقة ليست جاهزة بعد</translation>
    </message>
    <message>
        <source>no disc</source>
        <translation>لا قرص</translation>
    </message>
    <message>
        <source>disc</source>
        <comment>of unknown kind</comment>
        <translation>قرص</translation>
    </message>
    <message>
        <source>%1, not blank, can be erased</source>
        <translation>%1، ليس فارغًا، يمكن مسحه</translation>
    </message>
    <message>
        <source>%1, not blank</source>
        <translation>%1، ليس فارغًا</translation>
    </message>
    <message>
        <source>%1, blank, %2 min %3 s of audio</source>
        <translation>%1، فارغ، %2 د %3 ث من الصوت</translation>
    </message>
    <message>
        <source>drives takes no names</source>
        <translation>لا يقبل drives أي أسماء</translation>
    </message>
    <message>
        <source>list the drives that write discs, and what is in them</source>
        <translation>سرد السوّاقات التي تكتب الأقراص، وما فيها</translation>
    </message>
    <message>
        <source>List the drives for a script.</source>
        <translation>اسرد السوّاقات لأجل سكربت.</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there is none at all</source>
        <translation>لا جهاز إدخال باسم «%1»: لا يوجد أي جهاز</translation>
    </message>
    <message>
        <source>there is no input device &quot;%1&quot;: there are %2</source>
        <translation>لا جهاز إدخال باسم «%1»: الموجود هو %2</translation>
    </message>
    <message>
        <source>join takes two files or more</source>
        <translation>يتطلب join ملفين أو أكثر</translation>
    </message>
    <message>
        <source>join needs --to with the file to write</source>
        <translation>يتطلب join الخيار --to مع الملف المراد كتابته</translation>
    </message>
    <message>
        <source>%1: there is no such file</source>
        <translation>%1: لا ملف بهذا الاسم</translation>
    </message>
    <message>
        <source>%1: there is no such folder</source>
        <translation>%1: لا مجلد بهذا الاسم</translation>
    </message>
    <message>
        <source>make one recording of several, in the given order</source>
        <translation>جمع عدة تسجيلات في تسجيل واحد بالترتيب المعطى</translation>
    </message>
    <message>
        <source>The recording to write. An existing file is kept.</source>
        <translation>التسجيل المراد كتابته. يُبقى على الملف الموجود.</translation>
    </message>
    <message>
        <source>Join two parts of one recording without encoding them again. Other files are decoded and encoded.</source>
        <translation>اجمع جزأين من تسجيل واحد من دون إعادة ترميزهما. أما الملفات الأخرى فيُفكّ ترميزها ثم تُرمَّز.</translation>
    </message>
    <message>
        <source>%1, but the running program does not know this request: it is another version</source>
        <translation>%1، لكن البرنامج المُشغَّل لا يعرف هذا الطلب: إنه من إصدار آخر</translation>
    </message>
    <message>
        <source>%1, but the library could not be saved</source>
        <translation>%1، لكن تعذّر حفظ المكتبة</translation>
    </message>
    <message>
        <source>%1 could not be added to the library</source>
        <translation>تعذّرت إضافة %1 إلى المكتبة</translation>
    </message>
    <message>
        <source>file</source>
        <comment>the path of a recording</comment>
        <translation>الملف</translation>
    </message>
    <message>
        <source>key</source>
        <comment>names an entry of the library</comment>
        <translation>المفتاح</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (مفقود)</translation>
    </message>
    <message>
        <source>recordings</source>
        <translation>التسجيلات</translation>
    </message>
    <message>
        <source>ringtones</source>
        <translation>النغمات</translation>
    </message>
    <message>
        <source>the running program does not know this request: it is another version</source>
        <translation>لا يعرف البرنامج المُشغَّل هذا الطلب: إنه من إصدار آخر</translation>
    </message>
    <message>
        <source>no entry has the key %1 (nothing was removed)</source>
        <translation>لا مدخلة بالمفتاح %1 (لم يُزَل شيء)</translation>
    </message>
    <message>
        <source>the files are deleted, but the library could not be saved</source>
        <translation>حُذفت الملفات، لكن تعذّر حفظ المكتبة</translation>
    </message>
    <message>
        <source>library knows list and remove, not %1</source>
        <translation>يعرف library الأمرين list و remove، لا %1</translation>
    </message>
    <message>
        <source>library remove takes the keys of entries</source>
        <translation>يتطلب library remove مفاتيح المدخلات</translation>
    </message>
    <message>
        <source>list recordings and ringtones, or remove some with their files</source>
        <translation>سرد التسجيلات والنغمات، أو إزالة بعضها مع ملفاتها</translation>
    </message>
    <message>
        <source>List both collections with the key of each entry.</source>
        <translation>اسرد المجموعتين مع مفتاح كل مدخلة.</translation>
    </message>
    <message>
        <source>Remove an entry and delete its file.</source>
        <translation>أزل مدخلة واحذف ملفها.</translation>
    </message>
    <message>
        <source>manual takes nothing</source>
        <translation>لا يقبل manual شيئًا</translation>
    </message>
    <message>
        <source>completions takes one of bash, zsh, fish</source>
        <translation>يقبل completions واحدًا من bash و zsh و fish</translation>
    </message>
    <message>
        <source>print the manual page</source>
        <translation>طباعة صفحة الدليل</translation>
    </message>
    <message>
        <source>Read the manual page.</source>
        <translation>اقرأ صفحة الدليل.</translation>
    </message>
    <message>
        <source>print the completions for a shell</source>
        <translation>طباعة إكمالات الأوامر لصَدَفة</translation>
    </message>
    <message>
        <source>Install the completions for the current user&apos;s bash.</source>
        <translation>ثبّت الإكمالات لصَدَفة bash للمستخدم الحالي.</translation>
    </message>
    <message>
        <source>%1: is a folder</source>
        <translation>%1: هذا مجلد</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: لا مجلد بهذا الاسم</translation>
    </message>
    <message>
        <source>%1: that path is not a regular file</source>
        <translation>%1: هذا المسار ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>%1: exists already (--overwrite replaces it)</source>
        <translation>%1: موجود بالفعل (يستبدله --overwrite)</translation>
    </message>
    <message>
        <source>the folder %1 cannot be created</source>
        <translation>لا يمكن إنشاء المجلد %1</translation>
    </message>
    <message>
        <source>the folder %1 cannot be written: %2</source>
        <translation>لا تمكن الكتابة في المجلد %1: %2</translation>
    </message>
    <message>
        <source>record takes options only</source>
        <translation>لا يقبل record إلا الخيارات</translation>
    </message>
    <message>
        <source>--for takes a time above 0</source>
        <translation>قيمة --for زمن أكبر من 0</translation>
    </message>
    <message>
        <source>--pre-roll takes at most %1 milliseconds</source>
        <translation>قيمة --pre-roll لا تزيد على %1 ملّي ثانية</translation>
    </message>
    <message>
        <source>--folder takes a folder</source>
        <translation>يتطلب --folder مجلدًا</translation>
    </message>
    <message>
        <source>without an input device and without --computer there is nothing to record</source>
        <translation>من دون جهاز إدخال ومن دون --computer لا شيء لتسجيله</translation>
    </message>
    <message>
        <source>record an input device, what the computer plays, or both into .m4a files</source>
        <translation>تسجيل جهاز إدخال، أو ما يشغّله الحاسوب، أو كليهما في ملفات .m4a</translation>
    </message>
    <message>
        <source>Record the input device with this name, UID or id; none records no input device.</source>
        <translation>سجّل جهاز الإدخال الذي له هذا الاسم أو UID أو المعرّف؛ مع none لا يُسجَّل أي جهاز إدخال.</translation>
    </message>
    <message>
        <source>the device and the choice stored in the preferences</source>
        <translation>الجهاز والاختيار المخزَّنان في التفضيلات</translation>
    </message>
    <message>
        <source>Record what the computer plays.</source>
        <translation>سجّل ما يشغّله الحاسوب.</translation>
    </message>
    <message>
        <source>Stop after S seconds of recorded sound, over all files.</source>
        <translation>توقف بعد S ثانية من الصوت المسجَّل في كل الملفات معًا.</translation>
    </message>
    <message>
        <source>until Control+C</source>
        <translation>حتى Control+C</translation>
    </message>
    <message>
        <source>When waiting for the first sound, give up after S seconds.</source>
        <translation>عند انتظار أول صوت، تخلَّ عن الانتظار بعد S ثانية.</translation>
    </message>
    <message>
        <source>no limit</source>
        <translation>بلا حد</translation>
    </message>
    <message>
        <source>Begin a new file after a silence of MS milliseconds of computer audio.</source>
        <translation>ابدأ ملفًا جديدًا بعد صمت في صوت الحاسوب مدته MS ملّي ثانية.</translation>
    </message>
    <message>
        <source>as in the preferences</source>
        <translation>كما في التفضيلات</translation>
    </message>
    <message>
        <source>When waiting for the first sound, begin MS milliseconds before it, at most 5000.</source>
        <translation>عند انتظار أول صوت، ابدأ قبله بـ MS ملّي ثانية، بحد أقصى 5000.</translation>
    </message>
    <message>
        <source>Drop a recording shorter than S seconds.</source>
        <translation>أسقط التسجيل الأقصر من S ثانية.</translation>
    </message>
    <message>
        <source>Put the recordings into DIR, which is made when it is missing.</source>
        <translation>ضع التسجيلات في DIR، ويُنشأ إن لم يكن موجودًا.</translation>
    </message>
    <message>
        <source>Record ten seconds of the input device.</source>
        <translation>سجّل عشر ثوانٍ من جهاز الإدخال.</translation>
    </message>
    <message>
        <source>Record a named device into the current folder until Control+C.</source>
        <translation>سجّل جهازًا محددًا بالاسم في المجلد الحالي حتى Control+C.</translation>
    </message>
    <message>
        <source>Record what the computer plays, one file for each song, and give up when nothing plays for a minute.</source>
        <translation>سجّل ما يشغّله الحاسوب، كل أغنية في ملف، وتوقف إن لم يُشغَّل شيء مدة دقيقة.</translation>
    </message>
    <message>
        <source>a recording could not be finished</source>
        <translation>تعذّر إنهاء أحد التسجيلات</translation>
    </message>
    <message>
        <source>computer audio: its driver is not installed (see sonaphex driver install)</source>
        <translation>صوت الحاسوب: برنامج تشغيله غير مثبّت (راجع sonaphex driver install)</translation>
    </message>
    <message>
        <source>there is no input device</source>
        <translation>لا جهاز إدخال</translation>
    </message>
    <message>
        <source>there is no source to record: name one with --input or --computer</source>
        <translation>لا مصدر للتسجيل: حدّد واحدًا بـ --input أو --computer</translation>
    </message>
    <message>
        <source>nothing can be recorded</source>
        <translation>لا يمكن تسجيل شيء</translation>
    </message>
    <message>
        <source>waiting for the first sound</source>
        <translation>في انتظار أول صوت</translation>
    </message>
    <message>
        <source>finishing</source>
        <translation>يجري الإنهاء</translation>
    </message>
    <message>
        <source>no sound came: nothing was recorded</source>
        <translation>لم يأتِ أي صوت: لم يُسجَّل شيء</translation>
    </message>
    <message>
        <source>one recording was shorter than the filter&apos;s time and was not kept</source>
        <translation>كان تسجيل واحد أقصر من مدة المرشّح فلم يُحفظ</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings were shorter than the filter&apos;s time and were not kept</source>
        <translation>
            <numerusform>لم يكن أي تسجيل أقصر من مدة المرشّح</numerusform>
            <numerusform>كان تسجيل واحد أقصر من مدة المرشّح فلم يُحفظ</numerusform>
            <numerusform>كان تسجيلان أقصر من مدة المرشّح فلم يُحفظا</numerusform>
            <numerusform>كانت %n تسجيلات أقصر من مدة المرشّح فلم تُحفظ</numerusform>
            <numerusform>كان %n تسجيلًا أقصر من مدة المرشّح فلم تُحفظ</numerusform>
            <numerusform>كان %n تسجيل أقصر من مدة المرشّح فلم تُحفظ</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: what was recorded is kept in %2</source>
        <translation>%1: ما سُجِّل محفوظ في %2</translation>
    </message>
    <message>
        <source>%1 is made, but the running program does not know this request: it is another version</source>
        <translation>صُنع %1، لكن البرنامج المُشغَّل لا يعرف هذا الطلب: إنه من إصدار آخر</translation>
    </message>
    <message>
        <source>%1 is made, but the library could not be saved</source>
        <translation>صُنع %1، لكن تعذّر حفظ المكتبة</translation>
    </message>
    <message>
        <source>%1: it ends at second %2, --to is %3</source>
        <translation>%1: ينتهي عند الثانية %2، وقيمة --to هي %3</translation>
    </message>
    <message>
        <source>stopped before the end: no ringtone was made</source>
        <translation>أُوقف قبل النهاية: لم تُصنع نغمة</translation>
    </message>
    <message>
        <source>the source is damaged, the ringtone is silent where it could not be read: %1</source>
        <translation>المصدر تالف، والنغمة صامتة حيث تعذّرت قراءته: %1</translation>
    </message>
    <message>
        <source>ringtone takes one file</source>
        <translation>يتطلب ringtone ملفًا واحدًا</translation>
    </message>
    <message>
        <source>ringtone needs --from and --to</source>
        <translation>يتطلب ringtone الخيارين --from و --to</translation>
    </message>
    <message>
        <source>--to is not after --from</source>
        <translation>--to ليس بعد --from</translation>
    </message>
    <message>
        <source>make a ringtone from a range of a recording and add it to the library</source>
        <translation>صنع نغمة رنين من نطاق في تسجيل وإضافتها إلى المكتبة</translation>
    </message>
    <message>
        <source>Begin at second S of the recording.</source>
        <translation>ابدأ عند الثانية S من التسجيل.</translation>
    </message>
    <message>
        <source>End at second S of the recording.</source>
        <translation>انتهِ عند الثانية S من التسجيل.</translation>
    </message>
    <message>
        <source>Make a ringtone of this half minute.</source>
        <translation>اصنع نغمة رنين من نصف الدقيقة هذا.</translation>
    </message>
    <message>
        <source>longest silence found: %1 s</source>
        <translation>أطول صمت وُجد: %1 ث</translation>
    </message>
    <message>
        <source>%1: no silence of %2 s; the longest one has %3 s</source>
        <translation>%1: لا صمت مدته %2 ث؛ أطول صمت مدته %3 ث</translation>
    </message>
    <message>
        <source>split takes one file</source>
        <translation>يتطلب split ملفًا واحدًا</translation>
    </message>
    <message>
        <source>split needs --silence with at least %1 milliseconds</source>
        <translation>يتطلب split الخيار --silence بما لا يقل عن %1 ملّي ثانية</translation>
    </message>
    <message>
        <source>--level takes decibels from -120 to below 0</source>
        <translation>يأخذ --level قيمة بالديسيبل من -120 إلى ما دون 0</translation>
    </message>
    <message>
        <source>cut a recording into several at its silences, without encoding it again</source>
        <translation>تقسيم تسجيل إلى عدة تسجيلات عند مواضع صمته، من دون إعادة ترميزه</translation>
    </message>
    <message>
        <source>Cut in the middle of each silence of at least MS milliseconds, 50 or more.</source>
        <translation>اقطع في وسط كل صمت لا يقل عن MS ملّي ثانية، 50 أو أكثر.</translation>
    </message>
    <message>
        <source>A silence lies below DB decibels of full scale, from -120 to below 0.</source>
        <translation>الصمت ما كان دون DB ديسيبل من كامل المدى، من -120 إلى ما دون 0.</translation>
    </message>
    <message>
        <source>Put the parts into DIR.</source>
        <translation>ضع الأجزاء في DIR.</translation>
    </message>
    <message>
        <source>the folder of the recording</source>
        <translation>مجلد التسجيل</translation>
    </message>
    <message>
        <source>Only list the cuts and the longest silence; write nothing.</source>
        <translation>اسرد مواضع القطع وأطول صمت فقط؛ لا تكتب شيئًا.</translation>
    </message>
    <message>
        <source>Make a 1.m4a, a 2.m4a and so on beside a.m4a, which stays as it is.</source>
        <translation>اصنع a 1.m4a و a 2.m4a وهكذا بجوار a.m4a الذي يبقى على حاله.</translation>
    </message>
    <message>
        <source>See where the cuts would be.</source>
        <translation>شاهد أين ستكون مواضع القطع.</translation>
    </message>
    <message>
        <source>Print one JSON document instead of text.</source>
        <translation>اطبع مستند JSON واحدًا بدلًا من النص.</translation>
    </message>
    <message>
        <source>none</source>
        <comment>cover</comment>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>title:</source>
        <translation>العنوان:</translation>
    </message>
    <message>
        <source>artist:</source>
        <translation>الفنان:</translation>
    </message>
    <message>
        <source>album:</source>
        <translation>الألبوم:</translation>
    </message>
    <message>
        <source>year:</source>
        <translation>السنة:</translation>
    </message>
    <message>
        <source>genre:</source>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>artwork:</source>
        <translation>صورة الغلاف:</translation>
    </message>
    <message>
        <source>the artwork of %1 could not be written</source>
        <translation>تعذّرت كتابة صورة غلاف %1</translation>
    </message>
    <message>
        <source>tag takes one file</source>
        <translation>يتطلب tag ملفًا واحدًا</translation>
    </message>
    <message>
        <source>--year: %1 is not a number</source>
        <translation>--year: %1 ليس عددًا</translation>
    </message>
    <message>
        <source>the file is changed</source>
        <translation>غُيِّر الملف</translation>
    </message>
    <message>
        <source>print or write the tags and the cover of an MPEG-4 audio file</source>
        <translation>طباعة وسوم ملف صوت MPEG-4 وغلافه أو كتابتها</translation>
    </message>
    <message>
        <source>Write this title. An empty text removes the tag; the same holds for the other texts.</source>
        <translation>اكتب هذا العنوان. النص الفارغ يزيل الوسم؛ وكذلك الحال في النصوص الأخرى.</translation>
    </message>
    <message>
        <source>Write this artist.</source>
        <translation>اكتب هذا الفنان.</translation>
    </message>
    <message>
        <source>Write this album.</source>
        <translation>اكتب هذا الألبوم.</translation>
    </message>
    <message>
        <source>Write this year; 0 removes the tag.</source>
        <translation>اكتب هذه السنة؛ 0 يزيل الوسم.</translation>
    </message>
    <message>
        <source>Write this genre.</source>
        <translation>اكتب هذا النوع.</translation>
    </message>
    <message>
        <source>Take the cover from this picture file.</source>
        <translation>خذ الغلاف من ملف الصورة هذا.</translation>
    </message>
    <message>
        <source>Rename the file after its title, unless the name is taken or not possible.</source>
        <translation>أعِد تسمية الملف بعنوانه، ما لم يكن الاسم مستخدمًا أو غير ممكن.</translation>
    </message>
    <message>
        <source>Print the tags.</source>
        <translation>اطبع الوسوم.</translation>
    </message>
    <message>
        <source>Write a title and a cover.</source>
        <translation>اكتب عنوانًا وغلافًا.</translation>
    </message>
    <message>
        <source>Write a title and name the file Morning.m4a.</source>
        <translation>اكتب عنوانًا وسمِّ الملف Morning.m4a.</translation>
    </message>
    <message>
        <source>%1: This path exists, please change the path or name.</source>
        <translation>%1: هذا المسار موجود، يُرجى تغيير المسار أو الاسم.</translation>
    </message>
    <message>
        <source>%1: the file is being played</source>
        <translation>%1: الملف قيد التشغيل</translation>
    </message>
    <message>
        <source>the file is trimmed</source>
        <translation>شُذِّب الملف</translation>
    </message>
    <message>
        <source>trim takes one file</source>
        <translation>يتطلب trim ملفًا واحدًا</translation>
    </message>
    <message>
        <source>trim takes --from, --to or both</source>
        <translation>يتطلب trim الخيار --from أو --to أو كليهما</translation>
    </message>
    <message>
        <source>--to must be at least a tenth of a second after --from</source>
        <translation>يجب أن يكون --to بعد --from بعُشر ثانية على الأقل</translation>
    </message>
    <message>
        <source>--save-as names no file</source>
        <translation>لا يحدد --save-as اسم ملف</translation>
    </message>
    <message>
        <source>cut a recording down to a range, in its place or into a new file</source>
        <translation>تشذيب تسجيل إلى نطاق، في مكانه أو إلى ملف جديد</translation>
    </message>
    <message>
        <source>Write a new file and leave the recording as it is. An existing file is kept.</source>
        <translation>اكتب ملفًا جديدًا واترك التسجيل على حاله. يُبقى على الملف الموجود.</translation>
    </message>
    <message>
        <source>the recording is replaced</source>
        <translation>يُستبدل التسجيل</translation>
    </message>
    <message>
        <source>Cut off the first two and a half seconds and all after a minute.</source>
        <translation>اقطع أول ثانيتين ونصف وكل ما بعد الدقيقة.</translation>
    </message>
    <message>
        <source>Copy ten seconds into a new recording.</source>
        <translation>انسخ عشر ثوانٍ إلى تسجيل جديد.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n values are too few for a picture</source>
        <translation>
            <numerusform>%1: لا قيم لرسم صورة</numerusform>
            <numerusform>%1: قيمة واحدة لا تكفي لصورة</numerusform>
            <numerusform>%1: قيمتان لا تكفيان لصورة</numerusform>
            <numerusform>%1: %n قيم لا تكفي لصورة</numerusform>
            <numerusform>%1: %n قيمة لا تكفي لصورة</numerusform>
            <numerusform>%1: %n قيمة لا تكفي لصورة</numerusform>
        </translation>
    </message>
    <message>
        <source>waveform takes one file</source>
        <translation>يتطلب waveform ملفًا واحدًا</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>أُوقف قبل النهاية</translation>
    </message>
    <message>
        <source>the file is damaged, what could be read is shown: %1</source>
        <translation>الملف تالف، وقد عُرض ما أمكنت قراءته: %1</translation>
    </message>
    <message>
        <source>print ten values of a file&apos;s outline for each second</source>
        <translation>طباعة عشر قيم لكل ثانية من رسم موجة ملف</translation>
    </message>
    <message>
        <source>Draw the outline into a PNG file instead of printing it.</source>
        <translation>ارسم الموجة في ملف PNG بدلًا من طباعتها.</translation>
    </message>
    <message>
        <source>Replace FILE when it exists.</source>
        <translation>استبدل FILE إن كان موجودًا.</translation>
    </message>
    <message>
        <source>Draw the outline of a recording.</source>
        <translation>ارسم موجة تسجيل.</translation>
    </message>
    <message>
        <source>%1: no such command and no such file (see sonaphex help)</source>
        <translation>%1: لا أمر ولا ملف بهذا الاسم (راجع sonaphex help)</translation>
    </message>
    <message>
        <source>burning</source>
        <translation>يجري الحرق</translation>
    </message>
    <message>
        <source>%1, %2 being finished</source>
        <translation>%1، ويجري إنهاء %2</translation>
    </message>
    <message>
        <source>%1, %2 bytes</source>
        <translation>%1، %2 بايت</translation>
    </message>
    <message>
        <source>disc image</source>
        <translation>صورة قرص</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a list of the library and how many are in it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>--app and --not-app exclude each other</source>
        <translation>لا يمكن الجمع بين --app و --not-app</translation>
    </message>
    <message>
        <source>--%1 takes the name of a program</source>
        <translation>يتطلب --%1 اسم برنامج</translation>
    </message>
    <message>
        <source>Of computer audio, record only this program; may be given several times.</source>
        <translation>تسجيل هذا البرنامج فقط من صوت الحاسوب؛ يمكن تكراره.</translation>
    </message>
    <message>
        <source>with --computer everything, else as in the preferences</source>
        <translation>مع --computer كل شيء، وإلا كما في التفضيلات</translation>
    </message>
    <message>
        <source>Of computer audio, record everything but this program; may be given several times.</source>
        <translation>تسجيل كل صوت الحاسوب عدا هذا البرنامج؛ يمكن تكراره.</translation>
    </message>
    <message>
        <source>Record one program, whatever else plays.</source>
        <translation>تسجيل برنامج واحد أيًّا كان ما يُشغَّل غيره.</translation>
    </message>
    <message>
        <source>Of computer audio, give each file the title, artist, album and cover that the media player names.</source>
        <translation>عند تسجيل صوت الحاسوب، ضع في كل ملف العنوان والفنان والألبوم والغلاف كما يذكرها مشغّل الوسائط.</translation>
    </message>
    <message>
        <source>Of computer audio, begin a new file when the media player goes on to another track.</source>
        <translation>عند تسجيل صوت الحاسوب، ابدأ ملفًا جديدًا عندما ينتقل مشغّل الوسائط إلى مقطوعة أخرى.</translation>
    </message>
    <message>
        <source>Record an album without pauses, one file with its title for each track.</source>
        <translation>سجّل ألبومًا لا فواصل فيه، كل مقطوعة في ملف بعنوانها.</translation>
    </message>
    <message>
        <source>%1: no tracks were kept of this recording</source>
        <translation>%1: لم تُحفظ مسارات صوتية لهذا التسجيل</translation>
    </message>
    <message>
        <source>both gains were lowered by %1 dB, so that nothing is clipped</source>
        <translation>خُفض الكسبان بـ %1 ديسيبل كي لا تُقصّ أي ذروة</translation>
    </message>
    <message>
        <source>the new mix is saved</source>
        <translation>حُفظ المزيج الجديد</translation>
    </message>
    <message>
        <source>--%1: %2 is not a number</source>
        <translation>--%1: %2 ليس عددًا</translation>
    </message>
    <message>
        <source>balance takes one file</source>
        <translation>يتطلب balance ملفًا واحدًا</translation>
    </message>
    <message>
        <source>gains are -60 to 20 decibels, and the delay -2000 to 2000 milliseconds</source>
        <translation>الكسب من -60 إلى 20 ديسيبل، والتأخير من -2000 إلى 2000 ملّي ثانية</translation>
    </message>
    <message>
        <source>--to names no file</source>
        <translation>لا يحدد --to اسم ملف</translation>
    </message>
    <message>
        <source>mix the kept tracks of a recording anew, in its place or into a new file</source>
        <translation>مزج المسارين المحفوظين لتسجيل من جديد، في مكانه أو إلى ملف جديد</translation>
    </message>
    <message>
        <source>Make the input louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>ارفع صوت الإدخال بمقدار DB ديسيبل، أو اخفضه إن كانت القيمة سالبة؛ القيمة -60 صمت.</translation>
    </message>
    <message>
        <source>Make computer audio louder by DB decibels, or softer when it is negative; -60 is silence.</source>
        <translation>ارفع صوت الحاسوب بمقدار DB ديسيبل، أو اخفضه إن كانت القيمة سالبة؛ القيمة -60 صمت.</translation>
    </message>
    <message>
        <source>Move computer audio MS milliseconds later, or earlier when it is negative; at most 2000.</source>
        <translation>أخّر صوت الحاسوب MS ملّي ثانية، أو قدّمه إن كانت القيمة سالبة؛ بحد أقصى 2000.</translation>
    </message>
    <message>
        <source>Make the microphone louder against what the computer played.</source>
        <translation>ارفع صوت الميكروفون مقابل ما شغّله الحاسوب.</translation>
    </message>
    <message>
        <source>Move computer audio 120 milliseconds later, in a new file.</source>
        <translation>أخّر صوت الحاسوب 120 ملّي ثانية، في ملف جديد.</translation>
    </message>
    <message>
        <source>Of a recording of both sources, also keep the input and computer audio, each as a file of its own beside the mix.</source>
        <translation>عند تسجيل المصدرين معًا، احتفظ أيضًا بالإدخال وصوت الحاسوب، كل منهما في ملف مستقل بجانب المزيج.</translation>
    </message>
</context>
<context>
    <name>Control</name>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: لا مجلد بهذا الاسم</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: لا ملف بهذا الاسم</translation>
    </message>
    <message>
        <source>%1: the folder cannot be created</source>
        <translation>%1: لا يمكن إنشاء المجلد</translation>
    </message>
    <message>
        <source>the file or its tags could not be written</source>
        <translation>تعذّرت كتابة الملف أو وسومه</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>هذا المسار موجود، يُرجى تغيير المسار أو الاسم.</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>أُوقف قبل النهاية</translation>
    </message>
    <message>
        <source>a part of it is damaged and cannot be measured</source>
        <translation>جزء منه تالف ولا يمكن قياسه</translation>
    </message>
    <message>
        <source>%1 joined</source>
        <translation>%1 مجمّع</translation>
    </message>
</context>
<context>
    <name>ControlRequests</name>
    <message>
        <source>the program is ending</source>
        <translation>البرنامج في طور الإنهاء</translation>
    </message>
    <message>
        <source>there is no source to record</source>
        <translation>لا مصدر للتسجيل</translation>
    </message>
    <message>
        <source>nothing is being recorded</source>
        <translation>لا تسجيل جارٍ</translation>
    </message>
    <message>
        <source>unknown request</source>
        <translation>طلب غير معروف</translation>
    </message>
    <message>
        <source>there is no path</source>
        <translation>لا مسار</translation>
    </message>
</context>
<context>
    <name>ConvertingTipView</name>
    <message>
        <source>Converting notice</source>
        <translation>تنبيه التحويل</translation>
    </message>
    <message>
        <source>The recording is converted.</source>
        <translation>اكتمل تحويل التسجيل.</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>the password prompt was cancelled</source>
        <translation>أُلغي طلب كلمة السر</translation>
    </message>
    <message>
        <source>pkexec is not installed: administrator rights cannot be requested</source>
        <translation>pkexec غير مثبّت: لا يمكن طلب صلاحيات المدير</translation>
    </message>
    <message>
        <source>administrator rights were not given</source>
        <translation>لم تُمنح صلاحيات المدير</translation>
    </message>
    <message>
        <source>the command ended with status %1</source>
        <translation>انتهى الأمر بالحالة %1</translation>
    </message>
</context>
<context>
    <name>DesktopMain</name>
    <message>
        <source>%1 was not opened: the running program does not answer</source>
        <translation>لم يُفتح %1: البرنامج المُشغَّل لا يستجيب</translation>
    </message>
    <message>
        <source>it is already running, but does not answer</source>
        <translation>إنه يعمل بالفعل، لكنه لا يستجيب</translation>
    </message>
    <message>
        <source>Nothing can be recorded or played.</source>
        <translation>لا يمكن تسجيل شيء ولا تشغيله.</translation>
    </message>
    <message>
        <source>Sonaphex cannot start.</source>
        <translation>لا يمكن بدء Sonaphex.</translation>
    </message>
</context>
<context>
    <name>Disc</name>
    <message>
        <source>%1: its rate cannot be converted</source>
        <translation>%1: لا يمكن تحويل معدل عيّناته</translation>
    </message>
    <message>
        <source>%1: contains no audio</source>
        <translation>%1: لا يحوي صوتًا</translation>
    </message>
    <message>
        <source>%1: no such folder</source>
        <translation>%1: لا مجلد بهذا الاسم</translation>
    </message>
    <message>
        <source>%1: exists already, and an image replaces no file; choose another name</source>
        <translation>%1: موجود بالفعل، ولا تستبدل صورة القرص أي ملف؛ اختر اسمًا آخر</translation>
    </message>
    <message>
        <source>%1: a cue sheet cannot name a file with quotation marks or line ends; choose another name</source>
        <translation>%1: لا يمكن لملف cue أن يسمي ملفًا في اسمه علامات اقتباس أو نهايات أسطر؛ اختر اسمًا آخر</translation>
    </message>
    <message>
        <source>a file cannot be read: nothing was burned</source>
        <translation>لا تمكن قراءة أحد الملفات: لم يُحرق شيء</translation>
    </message>
    <message>
        <source>there is nothing to burn: no file is ticked</source>
        <translation>لا شيء لحرقه: لا ملف معلَّم</translation>
    </message>
    <message>
        <source>an audio CD holds at most %1 tracks, these are %2</source>
        <translation>يسع القرص الصوتي %1 مقطوعة على الأكثر، وهذه %2</translation>
    </message>
    <message>
        <source>Write Disc Image</source>
        <translation>كتابة صورة القرص</translation>
    </message>
    <message>
        <source>The image cannot be written there.</source>
        <translation>لا تمكن كتابة صورة القرص هناك.</translation>
    </message>
    <message>
        <source>no path was given for the disc image</source>
        <translation>لم يُعطَ مسار لصورة القرص</translation>
    </message>
    <message>
        <source>%1: the disk is full: the image needs %2, %3 are free</source>
        <translation>%1: القرص ممتلئ: تحتاج الصورة إلى %2، والمتاح %3</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <translation>%1: لا تمكن كتابته: %2</translation>
    </message>
    <message>
        <source>%1: cannot be read</source>
        <translation>%1: لا تمكن قراءته</translation>
    </message>
    <message>
        <source>%1: is not an audio file</source>
        <translation>%1: ليس ملف صوت</translation>
    </message>
    <message>
        <source>it was stopped before the end: nothing was written</source>
        <translation>أُوقف قبل النهاية: لم يُكتب شيء</translation>
    </message>
    <message>
        <source>the drive cannot be opened</source>
        <translation>لا يمكن فتح السوّاقة</translation>
    </message>
    <message>
        <source>%1: there is no disc in the drive</source>
        <translation>%1: لا قرص في السوّاقة</translation>
    </message>
    <message>
        <source>%1: the disc is not blank</source>
        <translation>%1: القرص ليس فارغًا</translation>
    </message>
    <message>
        <source>%1: the drive does not get ready</source>
        <translation>%1: السوّاقة لا تصير جاهزة</translation>
    </message>
    <message>
        <source>%1: this disc cannot be written to</source>
        <translation>%1: لا تمكن الكتابة على هذا القرص</translation>
    </message>
    <message>
        <source>the disc cannot be written like this: %1</source>
        <translation>لا تمكن كتابة القرص بهذا الشكل: %1</translation>
    </message>
    <message>
        <source>the drive gave no reason</source>
        <translation>لم تذكر السوّاقة سببًا</translation>
    </message>
    <message>
        <source>it was stopped before the end: the disc may be unusable</source>
        <translation>أُوقف قبل النهاية: ربما صار القرص غير صالح للاستخدام</translation>
    </message>
    <message>
        <source>it was stopped before the first sector: the disc is as it was</source>
        <translation>أُوقف قبل القطاع الأول: القرص كما كان</translation>
    </message>
    <message>
        <source>%1: an audio CD needs a CD-R or a CD-RW, this is a %2</source>
        <translation>%1: يتطلب القرص الصوتي CD-R أو CD-RW، وهذا %2</translation>
    </message>
    <message>
        <source>disc of another kind</source>
        <translation>قرص من نوع آخر</translation>
    </message>
    <message>
        <source>the layout of the disc could not be made</source>
        <translation>تعذّر إنشاء تخطيط القرص</translation>
    </message>
    <message>
        <source>%1 (the disc is unusable)</source>
        <translation>%1 (القرص غير صالح للاستخدام)</translation>
    </message>
    <message>
        <source>%1: the burn failed: %2</source>
        <translation>%1: فشل الحرق: %2</translation>
    </message>
    <message>
        <source>%1: this disc cannot be erased</source>
        <translation>%1: لا يمكن مسح هذا القرص</translation>
    </message>
    <message>
        <source>%1: the erase failed: %2</source>
        <translation>%1: فشل المسح: %2</translation>
    </message>
    <message>
        <source>no right to use %1: join the group that owns it (often &quot;cdrom&quot;) and log in again</source>
        <translation>لا صلاحية لاستخدام %1: انضم إلى المجموعة المالكة له (غالبًا «cdrom») ثم لِج من جديد</translation>
    </message>
    <message>
        <source>another program uses the drive, or its disc is mounted</source>
        <translation>برنامج آخر يستخدم السوّاقة، أو أن قرصها موصول بالنظام</translation>
    </message>
    <message>
        <source>the drive is gone</source>
        <translation>اختفت السوّاقة</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>لا يمكن فتح %1: %2</translation>
    </message>
    <message>
        <source>%1: no such file</source>
        <translation>%1: لا ملف بهذا الاسم</translation>
    </message>
    <message>
        <source>%1: is not a file</source>
        <translation>%1: ليس ملفًا</translation>
    </message>
    <message>
        <source>%1: no right to read it</source>
        <translation>%1: لا صلاحية لقراءته</translation>
    </message>
    <message>
        <source>%1: is empty</source>
        <translation>%1: فارغ</translation>
    </message>
    <message>
        <source>%1: the file ends earlier than when it was measured</source>
        <translation>%1: ينتهي الملف أبكر مما كان عند قياسه</translation>
    </message>
    <message>
        <source>there is not enough room on the disc: the tracks need %1 minutes (%2 sectors), %3 minutes (%4 sectors) are free</source>
        <translation>لا مساحة كافية على القرص: تحتاج المقطوعات إلى %1 دقيقة (%2 قطاع)، والمتاح %3 دقيقة (%4 قطاع)</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 م.بايت</translation>
    </message>
</context>
<context>
    <name>EditWindows</name>
    <message>
        <source>%1 cannot be opened: close the open dialog first.</source>
        <translation>لا يمكن فتح %1: أغلق الحوار المفتوح أولًا.</translation>
    </message>
    <message>
        <source>The tracks cannot be mixed.</source>
        <translation>لا يمكن مزج المسارين.</translation>
    </message>
</context>
<context>
    <name>FilteredAudioModel</name>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>Foundation</name>
    <message>
        <source>%1: another program is using it</source>
        <translation>%1: برنامج آخر يستخدمه</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>%1 is a link</source>
        <translation>%1 وصلة</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 ليس مجلدًا</translation>
    </message>
    <message>
        <source>%1 belongs to another user</source>
        <translation>%1 ملك مستخدم آخر</translation>
    </message>
    <message>
        <source>%1 is open to others</source>
        <translation>%1 متاح لمستخدمين آخرين</translation>
    </message>
    <message>
        <source>a part of the program is missing: %1</source>
        <translation>جزء من البرنامج مفقود: %1</translation>
    </message>
    <message>
        <source>%1 is already answered</source>
        <translation>يستجيب برنامج آخر على %1 بالفعل</translation>
    </message>
    <message>
        <source>%1 is not a socket of this user</source>
        <translation>%1 ليس مقبسًا لهذا المستخدم</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>، </translation>
    </message>
    <message>
        <source>is a link</source>
        <translation>هو وصلة</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>هو مجلد</translation>
    </message>
    <message>
        <source>belongs to another user</source>
        <translation>ملك مستخدم آخر</translation>
    </message>
    <message>
        <source>is larger than %1</source>
        <translation>أكبر من %1</translation>
    </message>
</context>
<context>
    <name>HelpPages</name>
    <message>
        <source>Sonaphex support</source>
        <translation>دعم Sonaphex</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>لا يُسجَّل شيء</translation>
    </message>
    <message>
        <source>Look whether a source is chosen in the main window: an input device, the computer&apos;s audio, or both. In a terminal, &lt;code&gt;sonaphex devices&lt;/code&gt; lists the input devices that the sound server offers.</source>
        <translation>تحقق من اختيار مصدر في النافذة الرئيسية: جهاز إدخال أو صوت الحاسوب أو كليهما. في الطرفية، يسرد &lt;code&gt;sonaphex devices&lt;/code&gt; أجهزة الإدخال التي يقدّمها خادوم الصوت.</translation>
    </message>
    <message>
        <source>A recording of the computer&apos;s audio alone begins with the first sound that the computer plays.</source>
        <translation>يبدأ تسجيل صوت الحاسوب وحده مع أول صوت يشغّله الحاسوب.</translation>
    </message>
    <message>
        <source>A recording is missing</source>
        <translation>أحد التسجيلات مفقود</translation>
    </message>
    <message>
        <source>Recordings shorter than the time that is set in the preferences are dropped; switch the filter off to keep them. What could not be finished, for instance on a full disk, lies in &lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</source>
        <translation>تُهمل التسجيلات الأقصر من المدة المحددة في التفضيلات؛ عطّل المرشّح للاحتفاظ بها. أما ما تعذّر إنهاؤه، بسبب امتلاء القرص مثلًا، فتجده في ‎&lt;code&gt;~/.local/share/com.korvane.Sonaphex/Unfinished&lt;/code&gt;.</translation>
    </message>
    <message>
        <source>The computer&apos;s audio cannot be chosen</source>
        <translation>لا يمكن اختيار صوت الحاسوب</translation>
    </message>
    <message>
        <source>It needs a small add-on: see &lt;a href=&quot;computer-audio.html&quot;&gt;recording the computer&apos;s audio&lt;/a&gt;.</source>
        <translation>يلزم لذلك ملحق صغير: راجع &lt;a href=&quot;computer-audio.html&quot;&gt;تسجيل صوت الحاسوب&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The settings are gone</source>
        <translation>اختفت الإعدادات</translation>
    </message>
    <message>
        <source>They are in &lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. A damaged file is kept beside it under a name that ends in &lt;code&gt;.damaged-&lt;/code&gt; and the date.</source>
        <translation>توجد الإعدادات في ‎&lt;code&gt;~/.config/com.korvane.Sonaphex.plist&lt;/code&gt;. ويُحفظ الملف التالف بجانبه باسم ينتهي بـ ‎&lt;code&gt;.damaged-&lt;/code&gt;‎ ثم التاريخ.</translation>
    </message>
    <message>
        <source>Recording the computer&apos;s audio</source>
        <translation>تسجيل صوت الحاسوب</translation>
    </message>
    <message>
        <source>The add-on is an input device named “Korvane System Audio” that hears what the default output plays. It is a small program of the user&apos;s session that speaks to the sound server; it changes nothing in what you hear, and it never becomes the default microphone of other programs.</source>
        <translation>الملحق جهاز إدخال اسمه «Korvane System Audio» يلتقط ما يشغّله جهاز الإخراج المبدئي. إنه برنامج صغير في جلسة المستخدم يتخاطب مع خادوم الصوت؛ لا يغيّر شيئًا مما تسمعه، ولا يصير أبدًا الميكروفون المبدئي للبرامج الأخرى.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>التثبيت</translation>
    </message>
    <message>
        <source>Choose Install in the preferences window, or run &lt;code&gt;sonaphex driver install&lt;/code&gt;. The password of an administrator is asked for once: the add-on is installed for all users of the computer.</source>
        <translation>اختر «ثبّت» في نافذة التفضيلات، أو شغّل &lt;code&gt;sonaphex driver install&lt;/code&gt;. تُطلب كلمة سر المدير مرة واحدة: يُثبَّت الملحق لجميع مستخدمي الحاسوب.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>الإزالة</translation>
    </message>
    <message>
        <source>Choose Remove in the same place, or run &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</source>
        <translation>اختر «أزل» في المكان نفسه، أو شغّل &lt;code&gt;sonaphex driver remove&lt;/code&gt;.</translation>
    </message>
</context>
<context>
    <name>ID3EditSave</name>
    <message>
        <source>The file “%1” is no longer there.</source>
        <translation>لم يعد الملف «%1» موجودًا.</translation>
    </message>
    <message>
        <source>The cover of “%1” could not be written.</source>
        <translation>تعذّرت كتابة غلاف «%1».</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written.</source>
        <translation>تعذّرت كتابة وسوم «%1».</translation>
    </message>
    <message>
        <source>The tags of “%1” could not be written: %2</source>
        <translation>تعذّرت كتابة وسوم «%1»: %2</translation>
    </message>
</context>
<context>
    <name>ID3EditWnd</name>
    <message>
        <source>Tags</source>
        <translation>الوسوم</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>ا&amp;ختر…</translation>
    </message>
    <message>
        <source>Choose a picture for the cover</source>
        <translation>اختر صورة للغلاف</translation>
    </message>
    <message>
        <source>Drop a picture here. Drag it out to remove it.</source>
        <translation>أفلِت صورة هنا. اسحبها إلى الخارج لإزالتها.</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>ال&amp;عنوان:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>A&amp;rtist:</source>
        <translation>ال&amp;فنان:</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>الفنان</translation>
    </message>
    <message>
        <source>Al&amp;bum:</source>
        <translation>الأل&amp;بوم:</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>الألبوم</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>ال&amp;سنة:</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>السنة</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>ال&amp;نوع:</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;تم</translation>
    </message>
</context>
<context>
    <name>ID3EditWndController</name>
    <message>
        <source>Choose</source>
        <translation>اختر</translation>
    </message>
    <message>
        <source>This file is not a picture.</source>
        <translation>هذا الملف ليس صورة.</translation>
    </message>
    <message>
        <source>Not everything could be saved.</source>
        <translation>تعذّر حفظ بعض البيانات.</translation>
    </message>
    <message>
        <source>ID3 converter......</source>
        <translation>يجري تحويل ID3......</translation>
    </message>
</context>
<context>
    <name>KeyNames</name>
    <message>
        <source>Control</source>
        <comment>a key of the keyboard</comment>
        <translation>Control</translation>
    </message>
    <message>
        <source>Super</source>
        <comment>a key of the keyboard</comment>
        <translation>Super</translation>
    </message>
    <message>
        <source>Shift</source>
        <comment>a key of the keyboard</comment>
        <translation>Shift</translation>
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
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>The desktop has no keys for this. Choose some in its settings.</source>
        <translation>لا مفاتيح لهذا في سطح المكتب. اختر بعضها في إعداداته.</translation>
    </message>
    <message>
        <source>These keys are set in the desktop&apos;s settings.</source>
        <translation>ضُبطت هذه المفاتيح في إعدادات سطح المكتب.</translation>
    </message>
    <message>
        <source>No keys in the desktop&apos;s settings</source>
        <translation>لا مفاتيح في إعدادات سطح المكتب</translation>
    </message>
    <message>
        <source>Click, then press the keys</source>
        <translation>انقر ثم اضغط المفاتيح</translation>
    </message>
    <message>
        <source>Press the keys</source>
        <translation>اضغط المفاتيح</translation>
    </message>
</context>
<context>
    <name>LibraryOutlineModel</name>
    <message numerus="yes">
        <source>%n recording(s)</source>
        <translation>
            <numerusform>لا تسجيلات</numerusform>
            <numerusform>تسجيل واحد</numerusform>
            <numerusform>تسجيلان</numerusform>
            <numerusform>%n تسجيلات</numerusform>
            <numerusform>%n تسجيلًا</numerusform>
            <numerusform>%n تسجيل</numerusform>
        </translation>
    </message>
    <message>
        <source>Library</source>
        <translation>المكتبة</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>عنوان</translation>
    </message>
</context>
<context>
    <name>LibraryPresenter</name>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>لم يعد الملف موجودًا: %1</translation>
    </message>
    <message>
        <source>“%1” cannot be played.</source>
        <translation>لا يمكن تشغيل «%1».</translation>
    </message>
    <message>
        <source>“%1” cannot be played: %2</source>
        <translation>لا يمكن تشغيل «%1»: %2</translation>
    </message>
    <message>
        <source>The folder of “%1” could not be shown.</source>
        <translation>تعذّر عرض مجلد «%1».</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>تعذّر فتح مشغّل لـ «%1».</translation>
    </message>
</context>
<context>
    <name>MainMenus</name>
    <message>
        <source>&amp;Record</source>
        <translation>ال&amp;تسجيل</translation>
    </message>
    <message>
        <source>&amp;Cut to Another Recording</source>
        <translation>انت&amp;قل إلى تسجيل آخر</translation>
    </message>
    <message>
        <source>Close this file and go on in a new one</source>
        <translation>أغلق هذا الملف وتابع في ملف جديد</translation>
    </message>
    <message>
        <source>Record the &amp;Input Device</source>
        <translation>سجّل جهاز الإد&amp;خال</translation>
    </message>
    <message>
        <source>Record Computer &amp;Audio</source>
        <translation>سجّل &amp;صوت الحاسوب</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>أ&amp;نهِ</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>ت&amp;حرير</translation>
    </message>
    <message>
        <source>Edit &amp;Tags…</source>
        <translation>حرّر ال&amp;وسوم…</translation>
    </message>
    <message>
        <source>Title, artist, album and cover of the recording</source>
        <translation>عنوان التسجيل وفنانه وألبومه وغلافه</translation>
    </message>
    <message>
        <source>T&amp;rim…</source>
        <translation>&amp;شذّب…</translation>
    </message>
    <message>
        <source>Keep a part of the recording</source>
        <translation>أبقِ جزءًا من التسجيل</translation>
    </message>
    <message>
        <source>Make a &amp;Ringtone…</source>
        <translation>اصنع &amp;نغمة رنين…</translation>
    </message>
    <message>
        <source>Cut a ringtone out of the recording</source>
        <translation>اقتطع نغمة رنين من التسجيل</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>ا&amp;حذف</translation>
    </message>
    <message>
        <source>Delete the selected recordings and their files</source>
        <translation>احذف التسجيلات المحددة وملفاتها</translation>
    </message>
    <message>
        <source>&amp;Search…</source>
        <translation>ا&amp;بحث…</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>ابحث في العناوين والفنانين والألبومات</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>حدّد ال&amp;كل</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>التف&amp;ضيلات…</translation>
    </message>
    <message>
        <source>&amp;Library</source>
        <translation>الم&amp;كتبة</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>ش&amp;غّل</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>شغّل أو ألبِث</translation>
    </message>
    <message>
        <source>Play the &amp;Selected Recording</source>
        <translation>شغّل التسجيل الم&amp;حدد</translation>
    </message>
    <message>
        <source>Play from its beginning</source>
        <translation>شغّل من بدايته</translation>
    </message>
    <message>
        <source>Back %1 Seconds</source>
        <translation>%1 ثوانٍ إلى الخلف</translation>
    </message>
    <message>
        <source>Forward %1 Seconds</source>
        <translation>%1 ثوانٍ إلى الأمام</translation>
    </message>
    <message>
        <source>S&amp;how in Folder</source>
        <translation>ا&amp;عرض في المجلد</translation>
    </message>
    <message>
        <source>Show the file in the file manager</source>
        <translation>اعرض الملف في مدير الملفات</translation>
    </message>
    <message>
        <source>&amp;Open in Player</source>
        <translation>ا&amp;فتح في المشغّل</translation>
    </message>
    <message>
        <source>Open the file in your music player</source>
        <translation>افتح الملف في مشغّل الموسيقى لديك</translation>
    </message>
    <message>
        <source>&amp;Burn to Disc…</source>
        <translation>احر&amp;ق على قرص…</translation>
    </message>
    <message>
        <source>Make an audio CD of this list</source>
        <translation>اصنع قرصًا صوتيًا من هذه القائمة</translation>
    </message>
    <message>
        <source>&amp;Find Short Recordings…</source>
        <translation>اعثر على تسجيلات قصي&amp;رة…</translation>
    </message>
    <message>
        <source>Find recordings that are too short to keep</source>
        <translation>اعثر على تسجيلات أقصر من أن تُبقى</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>&amp;Switch the Display</source>
        <translation>&amp;بدّل لوحة العرض</translation>
    </message>
    <message>
        <source>Level of the recording, or position of the playback</source>
        <translation>مستوى التسجيل، أو موضع التشغيل</translation>
    </message>
    <message>
        <source>Show the Next &amp;Notice</source>
        <translation>اعرض التنبيه ال&amp;تالي</translation>
    </message>
    <message>
        <source>Several notices stand in the display</source>
        <translation>في لوحة العرض عدة تنبيهات</translation>
    </message>
    <message>
        <source>&amp;Dismiss All Notices</source>
        <translation>استب&amp;عد كل التنبيهات</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;مساعدة</translation>
    </message>
    <message>
        <source>&amp;Support Page</source>
        <translation>صفحة ال&amp;دعم</translation>
    </message>
    <message>
        <source>Computer-Audio &amp;Add-on Page</source>
        <translation>صفحة مل&amp;حق صوت الحاسوب</translation>
    </message>
    <message>
        <source>&amp;Install the Computer-Audio Device…</source>
        <translation>&amp;ثبّت جهاز صوت الحاسوب…</translation>
    </message>
    <message>
        <source>A&amp;bout Sonaphex</source>
        <translation>&amp;عن Sonaphex</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>شذّب</translation>
    </message>
    <message>
        <source>Ringtone</source>
        <translation>نغمة رنين</translation>
    </message>
    <message>
        <source>Edit Tags</source>
        <translation>حرّر الوسوم</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>احرق</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>رشّح</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>اعرض</translation>
    </message>
    <message>
        <source>Open in player</source>
        <translation>افتح في المشغّل</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>احذف</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>اختر الإدخال أو صوت الحاسوب أو كليهما أولًا.</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>لا تسجيل جارٍ.</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>إنه مثبّت بالفعل.</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>يبقى الجهاز على حاله حتى ينتهي التسجيل.</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>تبقى المصادر على حالها حتى ينتهي التسجيل.</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>ألبِ&amp;ث</translation>
    </message>
    <message>
        <source>Nothing is playing.</source>
        <translation>لا شيء قيد التشغيل.</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice</source>
        <translation>ر&amp;د على التنبيه</translation>
    </message>
    <message>
        <source>&amp;Answer the Notice: %1</source>
        <translation>ر&amp;د على التنبيه: %1</translation>
    </message>
    <message>
        <source>There is no other notice.</source>
        <translation>لا تنبيه آخر.</translation>
    </message>
    <message>
        <source>This notice offers nothing.</source>
        <translation>لا يعرض هذا التنبيه أي إجراء.</translation>
    </message>
    <message>
        <source>There is no notice.</source>
        <translation>لا تنبيه.</translation>
    </message>
    <message>
        <source>Select a recording first.</source>
        <translation>حدّد تسجيلًا أولًا.</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>حدّد تسجيلًا أولًا. لا يُشغَّل شيء أثناء التسجيل.</translation>
    </message>
    <message>
        <source>Arrives in a later version of Sonaphex.</source>
        <translation>ستتوفر هذه الميزة في إصدار لاحق من Sonaphex.</translation>
    </message>
    <message>
        <source>There is nothing in this list.</source>
        <translation>لا شيء في هذه القائمة.</translation>
    </message>
    <message>
        <source>About Sonaphex</source>
        <translation>عن Sonaphex</translation>
    </message>
    <message>
        <source>Sonaphex %1</source>
        <translation>Sonaphex %1</translation>
    </message>
    <message>
        <source>Records what the computer plays, what a microphone hears, or both.

© 2026 The Sonaphex authors. Free software under the GNU General Public License, version 3 or later.</source>
        <translation>يسجّل ما يشغّله الحاسوب، أو ما يسمعه الميكروفون، أو كليهما.

© 2026 مؤلفو Sonaphex. برمجية حرة بموجب رخصة جنو العمومية العامة (GNU GPL)، الإصدار 3 أو ما يليه.</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>ال&amp;ترتيب حسب</translation>
    </message>
    <message>
        <source>&amp;Unsorted</source>
        <translation>&amp;بلا ترتيب</translation>
    </message>
    <message>
        <source>Sp&amp;lit at Silences…</source>
        <translation>&amp;قسّم عند الصمت…</translation>
    </message>
    <message>
        <source>Cut the recording into several at its silences</source>
        <translation>قسّم التسجيل إلى عدة تسجيلات عند مواضع صمته</translation>
    </message>
    <message>
        <source>&amp;Join…</source>
        <translation>ا&amp;جمع…</translation>
    </message>
    <message>
        <source>Make one recording of the selected ones, in the order of the list</source>
        <translation>اصنع تسجيلًا واحدًا من التسجيلات المحددة بترتيب القائمة</translation>
    </message>
    <message>
        <source>Select two recordings or more first.</source>
        <translation>حدّد تسجيلين أو أكثر أولًا.</translation>
    </message>
    <message>
        <source>&amp;Balance…</source>
        <translation>وا&amp;زِن…</translation>
    </message>
    <message>
        <source>Mix the input and computer audio of the recording anew</source>
        <translation>امزج الإدخال وصوت الحاسوب في التسجيل من جديد</translation>
    </message>
    <message>
        <source>This recording has no tracks. The preferences have a box that keeps those of the next ones.</source>
        <translation>ليس لهذا التسجيل مسارات صوتية محفوظة. في التفضيلات خانة تحفظ مسارات التسجيلات التالية.</translation>
    </message>
</context>
<context>
    <name>MainWnd</name>
    <message>
        <source>Start or stop recording</source>
        <translation>ابدأ التسجيل أو أوقفه</translation>
    </message>
    <message>
        <source>Pause or resume recording</source>
        <translation>ألبِث التسجيل أو استأنفه</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>انتقل إلى تسجيل آخر</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>لوحة العرض</translation>
    </message>
    <message>
        <source>&amp;Input</source>
        <translation>الإد&amp;خال</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>سجّل جهاز الإدخال المختار</translation>
    </message>
    <message>
        <source>Record the input device</source>
        <translation>سجّل جهاز الإدخال</translation>
    </message>
    <message>
        <source>Input device</source>
        <translation>جهاز الإدخال</translation>
    </message>
    <message>
        <source>&amp;Computer audio</source>
        <translation>صوت ال&amp;حاسوب</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>سجّل ما يشغّله الحاسوب</translation>
    </message>
    <message>
        <source>Record computer audio</source>
        <translation>سجّل صوت الحاسوب</translation>
    </message>
    <message>
        <source>Lost frames</source>
        <translation>الإطارات المفقودة</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>المكتبة</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>التسجيلات</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Programs to record</source>
        <translation>البرامج المراد تسجيلها</translation>
    </message>
</context>
<context>
    <name>MainWndController</name>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>جهاز صوت الحاسوب مثبّت.</translation>
    </message>
    <message>
        <source>The computer-audio device is installed. What the computer plays is recorded from now on.</source>
        <translation>جهاز صوت الحاسوب مثبّت. يُسجَّل ما يشغّله الحاسوب من الآن فصاعدًا.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is shorter than %2 s.</source>
        <translation>لم يُضَف «%1»: إنه أقصر من %2 ث.</translation>
    </message>
    <message>
        <source>%1 selected, %2 together</source>
        <translation>المحدد: %1، ومدتها معًا %2</translation>
    </message>
    <message>
        <source>No title, artist or album here has “%1” in it.</source>
        <translation>لا عنوان هنا ولا فنان ولا ألبوم فيه «%1».</translation>
    </message>
    <message>
        <source>The recording appears here when it has ended.</source>
        <translation>يظهر التسجيل هنا بعد انتهائه.</translation>
    </message>
    <message>
        <source>Nothing here yet. Press the red button to make your first recording.</source>
        <translation>لا شيء هنا بعد. اضغط الزر الأحمر لصنع أول تسجيل.</translation>
    </message>
    <message>
        <source>Ringtones that you make of your recordings appear here.</source>
        <translation>تظهر هنا نغمات الرنين التي تصنعها من تسجيلاتك.</translation>
    </message>
    <message>
        <source>Recordings that you make now appear here.</source>
        <translation>تظهر هنا التسجيلات التي تصنعها الآن.</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>ألبِث</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>cannot be read from the beginning</source>
        <translation>لا تمكن قراءته من بدايته</translation>
    </message>
    <message>
        <source>audio files cannot be read: %1</source>
        <translation>لا تمكن قراءة ملفات الصوت: %1</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>نفدت الذاكرة</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>لا تمكن قراءته</translation>
    </message>
    <message>
        <source>not an audio file, or too damaged to be read</source>
        <translation>ليس ملف صوت، أو أن تلفه يمنع قراءته</translation>
    </message>
    <message>
        <source>the file contains no audio</source>
        <translation>لا يحوي الملف صوتًا</translation>
    </message>
    <message>
        <source>its audio format is not supported</source>
        <translation>صيغة صوته غير مدعومة</translation>
    </message>
    <message>
        <source>no decoder for its audio format</source>
        <translation>لا مفكّك ترميز لصيغة صوته</translation>
    </message>
    <message>
        <source>its audio cannot be decoded</source>
        <translation>لا يمكن فك ترميز صوته</translation>
    </message>
    <message>
        <source>damaged at frame %1 (%2)</source>
        <translation>تالف عند الإطار %1 (%2)</translation>
    </message>
    <message>
        <source>channels that cannot be mixed</source>
        <translation>قنوات لا يمكن مزجها</translation>
    </message>
    <message>
        <source>not a finished recording of Sonaphex</source>
        <translation>ليس تسجيلًا مكتملًا من Sonaphex</translation>
    </message>
    <message>
        <source>its index is damaged</source>
        <translation>فهرسه تالف</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>الملف فارغ</translation>
    </message>
    <message>
        <source>the AAC encoder failed</source>
        <translation>فشل مرمّز AAC</translation>
    </message>
    <message>
        <source>the encoder is missing: %1</source>
        <translation>المرمّز مفقود: %1</translation>
    </message>
    <message>
        <source>the encoder does not take this rate or channel count</source>
        <translation>لا يقبل المرمّز معدل العيّنات أو عدد القنوات هذا</translation>
    </message>
    <message>
        <source>the rate cannot be converted</source>
        <translation>لا يمكن تحويل معدل العيّنات</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>this format cannot be written</source>
        <translation>لا تمكن الكتابة بهذه الصيغة</translation>
    </message>
    <message>
        <source>too deeply nested</source>
        <translation>تداخله أعمق مما ينبغي</translation>
    </message>
    <message>
        <source>a box of impossible size</source>
        <translation>صندوق حجمه مستحيل</translation>
    </message>
    <message>
        <source>too many boxes</source>
        <translation>صناديق أكثر مما ينبغي</translation>
    </message>
    <message>
        <source>a box larger than the one around it</source>
        <translation>صندوق أكبر من الصندوق المحيط به</translation>
    </message>
    <message>
        <source>a table that is larger than its box</source>
        <translation>جدول أكبر من صندوقه</translation>
    </message>
    <message>
        <source>not an MPEG-4 file</source>
        <translation>ليس ملف MPEG-4</translation>
    </message>
    <message>
        <source>the file ends within its index</source>
        <translation>ينتهي الملف داخل فهرسه</translation>
    </message>
    <message>
        <source>the file has no index</source>
        <translation>ليس للملف فهرس</translation>
    </message>
    <message>
        <source>a packet of the recording cannot be read</source>
        <translation>لا تمكن قراءة إحدى حزم التسجيل</translation>
    </message>
    <message>
        <source>stopped before the end</source>
        <translation>أُوقف قبل النهاية</translation>
    </message>
    <message>
        <source>%1 cannot be played</source>
        <translation>لا يمكن تشغيل %1</translation>
    </message>
    <message>
        <source>the sound server went away</source>
        <translation>اختفى خادوم الصوت</translation>
    </message>
    <message>
        <source>no sound server answers: %1</source>
        <translation>لا يستجيب أي خادوم صوت: %1</translation>
    </message>
    <message>
        <source>the sound server refused the stream</source>
        <translation>رفض خادوم الصوت الدفق</translation>
    </message>
    <message>
        <source>its tags cannot be written</source>
        <translation>لا تمكن كتابة وسومه</translation>
    </message>
    <message>
        <source>cannot write the tags of %1: %2</source>
        <translation>لا تمكن كتابة وسوم %1: %2</translation>
    </message>
    <message>
        <source>cannot read the tags of %1: %2</source>
        <translation>لا تمكن قراءة وسوم %1: %2</translation>
    </message>
    <message>
        <source>its tags cannot be read</source>
        <translation>لا تمكن قراءة وسومه</translation>
    </message>
    <message>
        <source>cannot read the image %1: %2</source>
        <translation>لا تمكن قراءة الصورة %1: %2</translation>
    </message>
    <message>
        <source>%1 is neither a JPEG nor a PNG image</source>
        <translation>%1 ليس صورة JPEG ولا PNG</translation>
    </message>
    <message>
        <source>cannot write the artwork of %1 to %2: %3</source>
        <translation>لا تمكن كتابة صورة غلاف %1 في %2: %3</translation>
    </message>
    <message>
        <source>another program is changing it</source>
        <translation>برنامج آخر يغيّره</translation>
    </message>
    <message>
        <source>its index cannot hold more</source>
        <translation>لا يسع فهرسه المزيد</translation>
    </message>
    <message>
        <source>the file is cut off</source>
        <translation>الملف مبتور</translation>
    </message>
    <message>
        <source>its index is too large</source>
        <translation>فهرسه أكبر مما ينبغي</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>لا تمكن قراءته</translation>
    </message>
    <message>
        <source>that path is not a regular file</source>
        <translation>هذا المسار ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>its last box has no size</source>
        <translation>ليس لصندوقه الأخير حجم</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>Record Library</source>
        <translation>مكتبة التسجيلات</translation>
    </message>
    <message>
        <source>Newly Recorded</source>
        <translation>أحدث التسجيلات</translation>
    </message>
    <message>
        <source>All Recorded</source>
        <translation>كل التسجيلات</translation>
    </message>
    <message>
        <source>Ringtone Library</source>
        <translation>مكتبة النغمات</translation>
    </message>
    <message>
        <source>Newly Ringtone</source>
        <translation>أحدث النغمات</translation>
    </message>
    <message>
        <source>All Ringtone</source>
        <translation>كل النغمات</translation>
    </message>
</context>
<context>
    <name>Platform::PortalAutostart</name>
    <message>
        <source>Sonaphex waits in the status bar.</source>
        <translation>ينتظر Sonaphex في شريط الحالة.</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>لم يسمح سطح المكتب بذلك</translation>
    </message>
</context>
<context>
    <name>Players</name>
    <message>
        <source>the address is incomplete</source>
        <translation>عنوان URL غير مكتمل</translation>
    </message>
    <message>
        <source>the picture is too large</source>
        <translation>الصورة أكبر مما ينبغي</translation>
    </message>
    <message>
        <source>the picture is not a file of this machine</source>
        <translation>الصورة ليست ملفًا على هذا الحاسوب</translation>
    </message>
</context>
<context>
    <name>PreferenceWnd</name>
    <message>
        <source>Preferences</source>
        <translation>التفضيلات</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>المجلدات</translation>
    </message>
    <message>
        <source>&amp;Recordings:</source>
        <translation>الت&amp;سجيلات:</translation>
    </message>
    <message>
        <source>Folder of recordings</source>
        <translation>مجلد التسجيلات</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>اختر…</translation>
    </message>
    <message>
        <source>Choose the folder of recordings</source>
        <translation>اختر مجلد التسجيلات</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>ا&amp;عرض</translation>
    </message>
    <message>
        <source>Show the folder of recordings</source>
        <translation>اعرض مجلد التسجيلات</translation>
    </message>
    <message>
        <source>Rin&amp;gtones:</source>
        <translation>النغ&amp;مات:</translation>
    </message>
    <message>
        <source>Folder of ringtones</source>
        <translation>مجلد نغمات الرنين</translation>
    </message>
    <message>
        <source>Choose the folder of ringtones</source>
        <translation>اختر مجلد نغمات الرنين</translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation>اع&amp;رض</translation>
    </message>
    <message>
        <source>Show the folder of ringtones</source>
        <translation>اعرض مجلد نغمات الرنين</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>&amp;Split computer audio at a silence of</source>
        <translation>&amp;قسّم صوت الحاسوب عند صمت مدته</translation>
    </message>
    <message>
        <source>Split computer audio at silences</source>
        <translation>قسّم صوت الحاسوب عند الصمت</translation>
    </message>
    <message>
        <source>Length of silence in milliseconds</source>
        <translation>مدة الصمت بالملّي ثانية</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>ملّي ثانية</translation>
    </message>
    <message>
        <source>&amp;Leave out recordings shorter than</source>
        <translation>أ&amp;همل التسجيلات الأقصر من</translation>
    </message>
    <message>
        <source>Leave out short recordings</source>
        <translation>أهمل التسجيلات القصيرة</translation>
    </message>
    <message>
        <source>Shortest recording in seconds</source>
        <translation>أقصر تسجيل بالثواني</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>ثانية</translation>
    </message>
    <message>
        <source>&amp;Begin before the first sound by</source>
        <translation>ا&amp;بدأ قبل أول صوت بـ</translation>
    </message>
    <message>
        <source>Time before the first sound in milliseconds</source>
        <translation>المدة قبل أول صوت بالملّي ثانية</translation>
    </message>
    <message>
        <source>A recording of computer audio waits for the first sound. It then contains this much of the time before it.</source>
        <translation>ينتظر تسجيل صوت الحاسوب أول صوت. وعندئذ يحوي هذا القدر من الوقت السابق له.</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>صوت الحاسوب</translation>
    </message>
    <message>
        <source>State of the computer-audio device</source>
        <translation>حالة جهاز صوت الحاسوب</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;ثبّت</translation>
    </message>
    <message>
        <source>Install the computer-audio device</source>
        <translation>ثبّت جهاز صوت الحاسوب</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>أ&amp;زل</translation>
    </message>
    <message>
        <source>Remove the computer-audio device</source>
        <translation>أزل جهاز صوت الحاسوب</translation>
    </message>
    <message>
        <source>Working on the computer-audio device</source>
        <translation>يجري العمل على جهاز صوت الحاسوب</translation>
    </message>
    <message>
        <source>Problem of the computer-audio device</source>
        <translation>مشكلة في جهاز صوت الحاسوب</translation>
    </message>
    <message>
        <source>Shortcuts from any program</source>
        <translation>الاختصارات من أي برنامج</translation>
    </message>
    <message>
        <source>Star&amp;t or stop:</source>
        <translation>اب&amp;دأ أو أوقف:</translation>
    </message>
    <message>
        <source>Shortcut for start and stop</source>
        <translation>اختصار البدء والإيقاف</translation>
    </message>
    <message>
        <source>&amp;Pause or resume:</source>
        <translation>أ&amp;لبِث أو استأنف:</translation>
    </message>
    <message>
        <source>Shortcut for pause and resume</source>
        <translation>اختصار الإلباث والاستئناف</translation>
    </message>
    <message>
        <source>&amp;New recording:</source>
        <translation>تسجيل &amp;جديد:</translation>
    </message>
    <message>
        <source>Shortcut for a new recording</source>
        <translation>اختصار تسجيل جديد</translation>
    </message>
    <message>
        <source>Use the &amp;Defaults</source>
        <translation>است&amp;خدم المبدئيات</translation>
    </message>
    <message>
        <source>Use the default shortcuts</source>
        <translation>استخدم الاختصارات المبدئية</translation>
    </message>
    <message>
        <source>How to bind keys on this desktop</source>
        <translation>كيفية ربط المفاتيح في سطح المكتب هذا</translation>
    </message>
    <message>
        <source>Commands to bind</source>
        <translation>الأوامر المراد ربطها</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>سطح المكتب</translation>
    </message>
    <message>
        <source>N&amp;otify when a recording ends in the background</source>
        <translation>أشعِر&amp;ني عند انتهاء تسجيل في الخلفية</translation>
    </message>
    <message>
        <source>Notify when a recording ends in the background</source>
        <translation>أشعِرني عند انتهاء تسجيل في الخلفية</translation>
    </message>
    <message>
        <source>A notification tells of finished and cut recordings, and of problems, while the window is not in front.</source>
        <translation>يخبرك إشعار بالتسجيلات المنتهية والمقسَّمة وبالمشكلات ما دامت النافذة ليست في المقدمة.</translation>
    </message>
    <message>
        <source>St&amp;art with the desktop, hidden</source>
        <translation>ابدأ مع سطح الم&amp;كتب، مخفيًا</translation>
    </message>
    <message>
        <source>Start with the desktop, hidden</source>
        <translation>ابدأ مع سطح المكتب، مخفيًا</translation>
    </message>
    <message>
        <source>Sonaphex waits in the status bar after you log in.</source>
        <translation>ينتظر Sonaphex في شريط الحالة بعد ولوجك.</translation>
    </message>
    <message>
        <source>Ta&amp;ke titles and covers from the media player</source>
        <translation>خ&amp;ذ العناوين والأغلفة من مشغّل الوسائط</translation>
    </message>
    <message>
        <source>Take titles and covers from the media player</source>
        <translation>خذ العناوين والأغلفة من مشغّل الوسائط</translation>
    </message>
    <message>
        <source>A recording of computer audio gets the title, artist, album and cover that the media player names for most of its length. Its file name stays as it is.</source>
        <translation>يأخذ تسجيل صوت الحاسوب العنوان والفنان والألبوم والغلاف التي يذكرها مشغّل الوسائط خلال معظم مدة التسجيل. ويبقى اسم ملفه على حاله.</translation>
    </message>
    <message>
        <source>Split &amp;computer audio when the media player changes the track</source>
        <translation>قسّم صوت الحاسوب عند ت&amp;غيّر مقطوعة مشغّل الوسائط</translation>
    </message>
    <message>
        <source>Split computer audio when the media player changes the track</source>
        <translation>قسّم صوت الحاسوب عند تغيّر مقطوعة مشغّل الوسائط</translation>
    </message>
    <message>
        <source>For albums without silences between the tracks.</source>
        <translation>للألبومات التي لا صمت بين مقطوعاتها.</translation>
    </message>
    <message>
        <source>K&amp;eep both tracks beside the mix</source>
        <translation>احت&amp;فظ بالمسارين بجانب المزيج</translation>
    </message>
    <message>
        <source>Keep both tracks beside the mix</source>
        <translation>احتفظ بالمسارين بجانب المزيج</translation>
    </message>
    <message>
        <source>A recording of both sources then also keeps the input and computer audio, each as a file of its own. Balance… mixes them anew. This takes three times the disk space, and more time after the recording.</source>
        <translation>عندئذ يحتفظ تسجيل المصدرين أيضًا بالإدخال وصوت الحاسوب، كل منهما في ملف مستقل. ويمزجهما «وازِن…» من جديد. يتطلب ذلك ثلاثة أضعاف مساحة القرص، ووقتًا أطول بعد التسجيل.</translation>
    </message>
</context>
<context>
    <name>PreferenceWndController</name>
    <message>
        <source>Start or stop the recording</source>
        <translation>ابدأ التسجيل أو أوقفه</translation>
    </message>
    <message>
        <source>Pause or resume the recording</source>
        <translation>ألبِث التسجيل أو استأنفه</translation>
    </message>
    <message>
        <source>Start a new recording</source>
        <translation>ابدأ تسجيلًا جديدًا</translation>
    </message>
    <message>
        <source>Sonaphex cannot be started with the desktop.</source>
        <translation>لا يمكن بدء Sonaphex مع سطح المكتب.</translation>
    </message>
    <message>
        <source>Sonaphex is still started with the desktop.</source>
        <translation>ما زال Sonaphex يبدأ مع سطح المكتب.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>اختر</translation>
    </message>
    <message>
        <source>Nothing is split at a silence: check the box first.</source>
        <translation>لا يُقسَّم شيء عند الصمت: ضع علامة في الخانة أولًا.</translation>
    </message>
    <message>
        <source>All recordings are kept: check the box first.</source>
        <translation>تُحفظ كل التسجيلات: ضع علامة في الخانة أولًا.</translation>
    </message>
    <message>
        <source>Installing the computer-audio device…</source>
        <translation>يجري تثبيت جهاز صوت الحاسوب…</translation>
    </message>
    <message>
        <source>Removing the computer-audio device…</source>
        <translation>تجري إزالة جهاز صوت الحاسوب…</translation>
    </message>
    <message>
        <source>The computer-audio device is installed.</source>
        <translation>جهاز صوت الحاسوب مثبّت.</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>جهاز صوت الحاسوب غير مثبّت.</translation>
    </message>
    <message>
        <source>It is installed already.</source>
        <translation>إنه مثبّت بالفعل.</translation>
    </message>
    <message>
        <source>There is nothing to remove.</source>
        <translation>لا شيء لإزالته.</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts.</source>
        <translation>لا يسمح سطح المكتب هذا بالاختصارات العمومية.</translation>
    </message>
    <message>
        <source>This desktop does not allow global shortcuts. Bind these commands to keys in the desktop&apos;s own keyboard settings:</source>
        <translation>لا يسمح سطح المكتب هذا بالاختصارات العمومية. اربط هذه الأوامر بمفاتيح في إعدادات لوحة المفاتيح لسطح المكتب:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>تحذير:</translation>
    </message>
    <message>
        <source>You cannot save files in the folder. Read and write privilege is needed.</source>
        <translation>لا يمكنك حفظ ملفات في هذا المجلد. تلزم صلاحية القراءة والكتابة.</translation>
    </message>
    <message>
        <source>Can not insert the system audio device, Please try it again.</source>
        <translation>لا يمكن إدراج جهاز صوت النظام، يُرجى المحاولة من جديد.</translation>
    </message>
</context>
<context>
    <name>ProcessWnd</name>
    <message>
        <source>Burn Progress</source>
        <translation>تقدّم الحرق</translation>
    </message>
    <message>
        <source>Burn progress</source>
        <translation>تقدّم الحرق</translation>
    </message>
    <message>
        <source>Burn state</source>
        <translation>حالة الحرق</translation>
    </message>
</context>
<context>
    <name>ProcessWndController</name>
    <message>
        <source>A burn cannot be stopped before it has written 4 %.</source>
        <translation>لا يمكن إيقاف الحرق قبل أن يكتب 4%.</translation>
    </message>
    <message>
        <source>Stops the burn; the disc is then unusable.</source>
        <translation>يوقف الحرق؛ ويصير القرص عندها غير صالح للاستخدام.</translation>
    </message>
    <message>
        <source>Burn Progress:</source>
        <translation>تقدّم الحرق:</translation>
    </message>
    <message>
        <source>Warning:</source>
        <translation>تحذير:</translation>
    </message>
    <message>
        <source>Are you sure to end the task?</source>
        <translation>أمتأكد من إنهاء المهمة؟</translation>
    </message>
    <message>
        <source>Please waiting a moment ...</source>
        <translation>يُرجى الانتظار لحظة ...</translation>
    </message>
    <message>
        <source>Burning Disc...</source>
        <translation>يجري حرق القرص...</translation>
    </message>
</context>
<context>
    <name>ProgramsMenu</name>
    <message>
        <source>Programs to record</source>
        <translation>البرامج المراد تسجيلها</translation>
    </message>
    <message>
        <source>Programs to record: %1</source>
        <translation>البرامج المراد تسجيلها: %1</translation>
    </message>
    <message>
        <source>Of computer audio, this is recorded: %1</source>
        <translation>ما يُسجَّل من صوت الحاسوب: %1</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>تبقى المصادر على حالها حتى ينتهي التسجيل.</translation>
    </message>
    <message>
        <source>The computer-audio device is not installed.</source>
        <translation>جهاز صوت الحاسوب غير مثبّت.</translation>
    </message>
    <message>
        <source>&amp;Everything</source>
        <translation>&amp;كل شيء</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>&amp;فقط</translation>
    </message>
    <message>
        <source>Everything &amp;but</source>
        <translation>كل شيء &amp;عدا</translation>
    </message>
    <message>
        <source>No program has played yet</source>
        <translation>لم يشغّل أي برنامج شيئًا بعد</translation>
    </message>
    <message>
        <source>P&amp;rograms to Record</source>
        <translation>البرا&amp;مج المراد تسجيلها</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>خيار غير معروف «%1».</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>خيارات غير معروفة: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>قيمة ناقصة بعد «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>قيمة غير متوقعة بعد «%1».</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The sound server does not answer yet. Waiting for it…</source>
        <translation>لا يستجيب خادوم الصوت بعد. في انتظاره…</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>لا تنتظر</translation>
    </message>
    <message>
        <source>The device stays as it is until the recording ends.</source>
        <translation>يبقى الجهاز على حاله حتى ينتهي التسجيل.</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>%1 cannot be written</source>
        <translation>لا تمكن كتابة %1</translation>
    </message>
    <message>
        <source>Rec..</source>
        <translation>تسجيل..</translation>
    </message>
    <message>
        <source>Rec</source>
        <translation>تسجيل</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>مُلبَث</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>Waiting for the first sound</source>
        <translation>في انتظار أول صوت</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>تسجيل %1</translation>
    </message>
    <message>
        <source>Paused %1</source>
        <translation>مُلبَث %1</translation>
    </message>
    <message>
        <source>Finishing the recording</source>
        <translation>يجري إنهاء التسجيل</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait ..</source>
        <translation>         يجري تحويل ملف الصوت
         يُرجى الانتظار ..</translation>
    </message>
    <message>
        <source>         Audio File Converting
         Please Wait </source>
        <translation>         يجري تحويل ملف الصوت
         يُرجى الانتظار </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two paths</comment>
        <translation>%1 و %2</translation>
    </message>
    <message>
        <source>the reason is unknown</source>
        <translation>السبب غير معروف</translation>
    </message>
    <message>
        <source>The recording is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>التسجيل محفوظ (ويُنقل عند بدء التشغيل التالي إذا توفرت مساحة) في</translation>
    </message>
    <message>
        <source>The recording is kept at</source>
        <comment>a path follows</comment>
        <translation>التسجيل محفوظ في</translation>
    </message>
    <message>
        <source>It is kept, and moved by the next start when there is room, at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>المصدر محفوظ (ويُنقل عند بدء التشغيل التالي إذا توفرت مساحة) في</translation>
    </message>
    <message>
        <source>It is kept at</source>
        <comment>the source of a recording; a path follows</comment>
        <translation>المصدر محفوظ في</translation>
    </message>
    <message>
        <source>What it was made from is kept, and moved by the next start when there is room, at</source>
        <comment>a path follows</comment>
        <translation>ما صُنع منه محفوظ (ويُنقل عند بدء التشغيل التالي إذا توفرت مساحة) في</translation>
    </message>
    <message>
        <source>What it was made from is kept at</source>
        <comment>a path follows</comment>
        <translation>ما صُنع منه محفوظ في</translation>
    </message>
    <message>
        <source>A part of the recording could not be written (error %1). What was written is kept.</source>
        <translation>تعذّرت كتابة جزء من التسجيل (خطأ %1). ما كُتب محفوظ.</translation>
    </message>
    <message>
        <source>%1: %2 could not be saved in “%3”.</source>
        <translation>%1: تعذّر حفظ %2 في «%3».</translation>
    </message>
    <message>
        <source>%1 could not be finished: %2.</source>
        <translation>تعذّر إنهاء %1: %2.</translation>
    </message>
    <message>
        <source>One source of %1 could not be read (%2) and is missing in it.</source>
        <translation>تعذّرت قراءة أحد مصادر %1 (%2) فهو غير موجود فيه.</translation>
    </message>
    <message>
        <source>%1 could not be mixed: %2.</source>
        <translation>تعذّر مزج %1: %2.</translation>
    </message>
    <message>
        <source>The disk is nearly full: %1 could not be mixed, which needs %2 MB; %3 MB are left.</source>
        <translation>القرص شبه ممتلئ: تعذّر مزج %1، وهو يحتاج إلى %2 م.بايت؛ والمتبقي %3 م.بايت.</translation>
    </message>
    <message>
        <source>%1 could not be encoded: %2.</source>
        <translation>تعذّر ترميز %1: %2.</translation>
    </message>
    <message>
        <source>A part of %1 could not be read (%2) and is missing in it.</source>
        <translation>تعذّرت قراءة جزء من %1 (%2) فهو غير موجود فيه.</translation>
    </message>
    <message>
        <source>%1 could not be tagged. Its audio is complete.</source>
        <translation>تعذّرت كتابة وسوم %1. صوته كامل.</translation>
    </message>
    <message>
        <source>less than a minute</source>
        <translation>أقل من دقيقة</translation>
    </message>
    <message>
        <source>about 1 minute</source>
        <translation>نحو دقيقة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes</source>
        <translation>
            <numerusform>أقل من دقيقة</numerusform>
            <numerusform>نحو دقيقة واحدة</numerusform>
            <numerusform>نحو دقيقتين</numerusform>
            <numerusform>نحو %n دقائق</numerusform>
            <numerusform>نحو %n دقيقة</numerusform>
            <numerusform>نحو %n دقيقة</numerusform>
        </translation>
    </message>
    <message>
        <source>Waring:</source>
        <translation>تحذير:</translation>
    </message>
    <message>
        <source>The application is reading your USB headset data, please do not unplug your USB headset, if you want to unplug your USB headset please turn off this application first， Otherwise give your computer some trouble.</source>
        <translation>يقرأ البرنامج بيانات سماعة USB لديك، فيُرجى عدم فصلها. إن أردت فصل سماعة USB فأغلق هذا البرنامج أولًا، وإلا فقد يواجه حاسوبك بعض المشكلات.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2. Nothing is heard from it until it can.</source>
        <translation>لا يمكن فتح %1: %2. لن يُسمع منه شيء حتى يمكن فتحه.</translation>
    </message>
    <message>
        <source>%1 is gone. There is no other input device: connect one.</source>
        <translation>لم يعد %1 موجودًا. لا جهاز إدخال آخر: وصّل واحدًا.</translation>
    </message>
    <message>
        <source>%1 is gone. %2 takes its place until it is back.</source>
        <translation>لم يعد %1 موجودًا. يحل %2 محله حتى يعود.</translation>
    </message>
    <message>
        <source>The input device</source>
        <translation>جهاز الإدخال</translation>
    </message>
    <message>
        <source>the input device</source>
        <translation>جهاز الإدخال</translation>
    </message>
    <message>
        <source>Computer audio</source>
        <translation>صوت الحاسوب</translation>
    </message>
    <message>
        <source>computer audio</source>
        <translation>صوت الحاسوب</translation>
    </message>
    <message>
        <source>Add-on required to record the system audio.</source>
        <translation>يلزم ملحق لتسجيل صوت النظام.</translation>
    </message>
    <message>
        <source>KorvanAudioDevice is easy to use, it simply accept system audio data, allowing any audio application to send and receive audio with no other support needed. KorvanAudioDevice is free, and runs on Linux computers. This driver will only be used by Sonaphex.</source>
        <translation>KorvanAudioDevice سهل الاستخدام، فهو يستقبل بيانات صوت النظام ببساطة، ويتيح لأي تطبيق صوت إرسال الصوت واستقباله من دون حاجة إلى أي دعم آخر. وهو مجاني ويعمل على حواسيب لينكس. لن يستخدم برنامج التشغيل هذا إلا Sonaphex.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>ثبّت</translation>
    </message>
    <message>
        <source>Please stop your recording.</source>
        <translation>يُرجى إيقاف التسجيل.</translation>
    </message>
    <message>
        <source>Stop Record</source>
        <translation>أوقف التسجيل</translation>
    </message>
    <message>
        <source>Start Record</source>
        <translation>ابدأ التسجيل</translation>
    </message>
    <message>
        <source>Pause Record</source>
        <translation>ألبِث التسجيل</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>لا تسجيل جارٍ</translation>
    </message>
    <message>
        <source>The input device does not deliver. Nothing is recorded.</source>
        <translation>لا يسلّم جهاز الإدخال أي صوت. لا يُسجَّل شيء.</translation>
    </message>
    <message>
        <source>Computer audio does not deliver. Nothing is recorded.</source>
        <translation>لا يسلّم صوت الحاسوب أي بيانات. لا يُسجَّل شيء.</translation>
    </message>
    <message>
        <source>There is no input device. Nothing is recorded.</source>
        <translation>لا جهاز إدخال. لا يُسجَّل شيء.</translation>
    </message>
    <message>
        <source>The input device does not deliver (%1). Nothing is recorded.</source>
        <translation>لا يسلّم جهاز الإدخال أي صوت (%1). لا يُسجَّل شيء.</translation>
    </message>
    <message>
        <source>%1 is off: it did not start. This recording goes without it.</source>
        <translation>%1 متوقف: لم يبدأ. يستمر هذا التسجيل من دونه.</translation>
    </message>
    <message>
        <source>%1 is off: it did not start (%2). This recording goes without it.</source>
        <translation>%1 متوقف: لم يبدأ (%2). يستمر هذا التسجيل من دونه.</translation>
    </message>
    <message>
        <source>%1 is not being recorded: %2.</source>
        <translation>لا يُسجَّل %1: %2.</translation>
    </message>
    <message>
        <source>The recording could not be split (%1). It continues in the same file.</source>
        <translation>تعذّر تقسيم التسجيل (%1). إنه يستمر في الملف نفسه.</translation>
    </message>
    <message>
        <source>The sound server</source>
        <translation>خادوم الصوت</translation>
    </message>
    <message>
        <source>%1 went away. The wait for the first sound continues when it is back.</source>
        <translation>اختفى %1. يُستأنف انتظار أول صوت عند عودته.</translation>
    </message>
    <message>
        <source>%1 went away. The recording so far is kept and continues when it is back.</source>
        <translation>اختفى %1. التسجيل حتى الآن محفوظ ويُستأنف عند عودته.</translation>
    </message>
    <message>
        <source>%1 is back. The wait for the first sound goes on.</source>
        <translation>عاد %1. يستمر انتظار أول صوت.</translation>
    </message>
    <message>
        <source>%1 s are missing: %2 was away. The recording goes on.</source>
        <translation>فُقدت %1 ث: غاب %2. يستمر التسجيل.</translation>
    </message>
    <message>
        <source>%1 s are missing (%2 frames): the computer was too busy to take them.</source>
        <translation>فُقدت %1 ث (%2 إطار): كان الحاسوب مشغولًا فلم يأخذها.</translation>
    </message>
    <message>
        <source>The disk is full. Nothing more is recorded until there is room; what was recorded is kept.</source>
        <translation>القرص ممتلئ. لن يُسجَّل المزيد حتى تتوفر مساحة؛ وما سُجِّل محفوظ.</translation>
    </message>
    <message>
        <source>%1. Nothing more is recorded; what was recorded is kept.</source>
        <translation>%1. لن يُسجَّل المزيد؛ وما سُجِّل محفوظ.</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays.</source>
        <translation>صوت الحاسوب صامت منذ %1 ث: لا شيء قيد التشغيل.</translation>
    </message>
    <message>
        <source>Computer audio has been silent for %1 s: nothing plays on %2, the output that is recorded.</source>
        <translation>صوت الحاسوب صامت منذ %1 ث: لا شيء قيد التشغيل على %2، جهاز الإخراج المسجَّل.</translation>
    </message>
    <message>
        <source>The input device is muted: only silence has been recorded for %1 s.</source>
        <translation>جهاز الإدخال مكتوم: لم يُسجَّل إلا الصمت منذ %1 ث.</translation>
    </message>
    <message>
        <source>The input device has delivered only silence for %1 s. It may be switched off, or the wrong one: another one can be chosen when the recording is stopped.</source>
        <translation>لم يسلّم جهاز الإدخال إلا الصمت منذ %1 ث. ربما كان مطفأً أو ليس الجهاز الصحيح: يمكن اختيار جهاز آخر بعد إيقاف التسجيل.</translation>
    </message>
    <message>
        <source>The disk is nearly full: there is room for %1 of recording.</source>
        <translation>القرص شبه ممتلئ: تكفي المساحة لتسجيل مدته %1.</translation>
    </message>
    <message>
        <source>%1 s are missing: the disk was full. The recording went on in another file.</source>
        <translation>فُقدت %1 ث: كان القرص ممتلئًا. استمر التسجيل في ملف آخر.</translation>
    </message>
    <message>
        <source>An earlier recording could not be finished. It is kept at</source>
        <comment>a path follows</comment>
        <translation>تعذّر إنهاء تسجيل سابق. وهو محفوظ في</translation>
    </message>
    <message numerus="yes">
        <source>%n earlier recordings could not be finished. They are kept in</source>
        <comment>a path follows</comment>
        <translation>
            <numerusform>لا تسجيلات سابقة تعذّر إنهاؤها. مكان حفظها</numerusform>
            <numerusform>تعذّر إنهاء تسجيل سابق واحد. وهو محفوظ في</numerusform>
            <numerusform>تعذّر إنهاء تسجيلين سابقين. وهما محفوظان في</numerusform>
            <numerusform>تعذّر إنهاء %n تسجيلات سابقة. وهي محفوظة في</numerusform>
            <numerusform>تعذّر إنهاء %n تسجيلًا سابقًا. وهي محفوظة في</numerusform>
            <numerusform>تعذّر إنهاء %n تسجيل سابق. وهي محفوظة في</numerusform>
        </translation>
    </message>
    <message>
        <source>Resume Record</source>
        <translation>استأنف التسجيل</translation>
    </message>
    <message>
        <source>the input unit cannot be opened</source>
        <translation>لا يمكن فتح وحدة الإدخال</translation>
    </message>
    <message>
        <source>there is no input unit</source>
        <translation>لا وحدة إدخال</translation>
    </message>
    <message>
        <source>the unit&apos;s output cannot be switched off</source>
        <translation>لا يمكن تعطيل إخراج الوحدة</translation>
    </message>
    <message>
        <source>the device cannot be used</source>
        <translation>لا يمكن استخدام الجهاز</translation>
    </message>
    <message>
        <source>the device accepts no callback</source>
        <translation>لا يقبل الجهاز دالة رد نداء</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be read</source>
        <translation>لا تمكن قراءة صيغة الجهاز</translation>
    </message>
    <message>
        <source>the device&apos;s format cannot be captured</source>
        <translation>لا يمكن الالتقاط بصيغة الجهاز</translation>
    </message>
    <message>
        <source>the device&apos;s buffer size cannot be read</source>
        <translation>لا تمكن قراءة حجم المخزن المؤقت للجهاز</translation>
    </message>
    <message>
        <source>the unit cannot be initialised</source>
        <translation>لا تمكن تهيئة الوحدة</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <translation>لا ذاكرة كافية</translation>
    </message>
    <message>
        <source>the device cannot be started</source>
        <translation>لا يمكن بدء تشغيل الجهاز</translation>
    </message>
    <message>
        <source>Less than a minute left on this disk</source>
        <translation>المتبقي على هذا القرص: أقل من دقيقة</translation>
    </message>
    <message>
        <source>About %1 min left on this disk</source>
        <translation>المتبقي على هذا القرص: نحو %1 د</translation>
    </message>
    <message>
        <source>About %1 h %2 min left on this disk</source>
        <translation>المتبقي على هذا القرص: نحو %1 س %2 د</translation>
    </message>
    <message>
        <source>%1 is complete, but its tracks could not be kept: %2.</source>
        <translation>اكتمل %1، لكن تعذّر الاحتفاظ بمساريه: %2.</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>القرص شبه ممتلئ</translation>
    </message>
    <message>
        <source>%1 could not be saved beside its recording: %2.</source>
        <translation>تعذّر حفظ %1 بجانب تسجيله: %2.</translation>
    </message>
    <message>
        <source>An interrupted recording is complete now:</source>
        <comment>a path follows</comment>
        <translation>اكتمل الآن تسجيل كان قد انقطع:</translation>
    </message>
    <message>
        <source>the recorded sound of a source is missing</source>
        <translation>الصوت المسجَّل لأحد المصادر مفقود</translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>لا تسجيل جارٍ.</translation>
    </message>
    <message>
        <source>Choose the input, computer audio, or both first.</source>
        <translation>اختر الإدخال أو صوت الحاسوب أو كليهما أولًا.</translation>
    </message>
    <message>
        <source>Select a recording first. Nothing is played while recording.</source>
        <translation>حدّد تسجيلًا أولًا. لا يُشغَّل شيء أثناء التسجيل.</translation>
    </message>
    <message>
        <source>The sources stay as they are until the recording ends.</source>
        <translation>تبقى المصادر على حالها حتى ينتهي التسجيل.</translation>
    </message>
    <message>
        <source>Record the chosen input device</source>
        <translation>سجّل جهاز الإدخال المختار</translation>
    </message>
    <message>
        <source>Record what the computer plays</source>
        <translation>سجّل ما يشغّله الحاسوب</translation>
    </message>
    <message>
        <source>%1 s lost</source>
        <translation>فُقدت %1 ث</translation>
    </message>
    <message>
        <source>No frames lost</source>
        <translation>لا إطارات مفقودة</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 إطار</translation>
    </message>
    <message>
        <source>Nothing is being recorded</source>
        <translation>لا تسجيل جارٍ</translation>
    </message>
    <message>
        <source>No sound server</source>
        <translation>لا خادوم صوت</translation>
    </message>
    <message>
        <source>No input device</source>
        <translation>لا جهاز إدخال</translation>
    </message>
    <message>
        <source>Waiting for the first sound of computer audio</source>
        <translation>في انتظار أول صوت من الحاسوب</translation>
    </message>
    <message>
        <source>No sound server: a test tone is recorded</source>
        <translation>لا خادوم صوت: تُسجَّل نغمة اختبار</translation>
    </message>
    <message>
        <source>No device</source>
        <translation>لا جهاز</translation>
    </message>
    <message>
        <source>No input device was found.</source>
        <translation>لم يُعثر على جهاز إدخال.</translation>
    </message>
    <message>
        <source>The input is not recorded: check the box first.</source>
        <translation>لا يُسجَّل الإدخال: ضع علامة في الخانة أولًا.</translation>
    </message>
    <message>
        <source>Cut to another recording</source>
        <translation>انتقل إلى تسجيل آخر</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
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
        <translation>%1 و %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>%1 فقط</translation>
    </message>
    <message>
        <source>Everything but %1</source>
        <translation>كل شيء عدا %1</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>كل شيء</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>في انتظار %1</translation>
    </message>
</context>
<context>
    <name>RecordStateController</name>
    <message>
        <source>A recording is running.</source>
        <translation>هناك تسجيل جارٍ.</translation>
    </message>
    <message>
        <source>%1 is off: %2.</source>
        <translation>%1 متوقف: %2.</translation>
    </message>
    <message>
        <source>Computer audio (%1) has been silent for %2 s: nothing plays.</source>
        <translation>صوت الحاسوب (%1) صامت منذ %2 ث: لا شيء يُشغَّل.</translation>
    </message>
    <message>
        <source>another recording of computer audio runs with other programs</source>
        <translation>يجري تسجيل آخر لصوت الحاسوب ببرامج أخرى</translation>
    </message>
    <message>
        <source>the computer-audio device cannot choose programs; remove it and install it again</source>
        <translation>لا يستطيع جهاز صوت الحاسوب اختيار البرامج؛ أزله ثم ثبّته من جديد</translation>
    </message>
</context>
<context>
    <name>RecordingJoin</name>
    <message>
        <source>The recordings were not joined.</source>
        <translation>لم تُجمع التسجيلات.</translation>
    </message>
    <message>
        <source>The file is no longer there: %1</source>
        <translation>لم يعد الملف موجودًا: %1</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>جمع</translation>
    </message>
    <message>
        <source>This path exists, please change the path or name.</source>
        <translation>هذا المسار موجود، يُرجى تغيير المسار أو الاسم.</translation>
    </message>
    <message numerus="yes">
        <source>Joining %n recordings…</source>
        <translation>
            <numerusform>لا تسجيلات لجمعها…</numerusform>
            <numerusform>يجري جمع تسجيل واحد…</numerusform>
            <numerusform>يجري جمع تسجيلين…</numerusform>
            <numerusform>يجري جمع %n تسجيلات…</numerusform>
            <numerusform>يجري جمع %n تسجيلًا…</numerusform>
            <numerusform>يجري جمع %n تسجيل…</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was made. The recordings are not parts of one recording, so the sound was encoded again.</source>
        <translation>صُنع «%1». التسجيلات ليست أجزاءً من تسجيل واحد، لذلك أُعيد ترميز الصوت.</translation>
    </message>
    <message>
        <source>“%1” was made. The sound was copied without encoding it again.</source>
        <translation>صُنع «%1». نُسخ الصوت من دون إعادة ترميزه.</translation>
    </message>
</context>
<context>
    <name>RecordingNotifier</name>
    <message>
        <source>“%1” was not kept: it is too short.</source>
        <translation>لم يُحفظ «%1»: إنه قصير جدًا.</translation>
    </message>
    <message>
        <source>Recording not kept</source>
        <translation>لم يُحفظ التسجيل</translation>
    </message>
    <message>
        <source>About the recording</source>
        <translation>بخصوص التسجيل</translation>
    </message>
    <message>
        <source>Recording cut; the next one runs</source>
        <translation>قُسّم التسجيل؛ والتالي جارٍ</translation>
    </message>
    <message>
        <source>Recording finished</source>
        <translation>انتهى التسجيل</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings finished</source>
        <translation>
            <numerusform>لم ينتهِ أي تسجيل</numerusform>
            <numerusform>انتهى تسجيل واحد</numerusform>
            <numerusform>انتهى تسجيلان</numerusform>
            <numerusform>انتهت %n تسجيلات</numerusform>
            <numerusform>انتهى %n تسجيلًا</numerusform>
            <numerusform>انتهى %n تسجيل</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>اعرض</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
</context>
<context>
    <name>RecordingRename</name>
    <message>
        <source>the title is empty</source>
        <translation>العنوان فارغ</translation>
    </message>
    <message>
        <source>a file name cannot contain “/”</source>
        <translation>لا يمكن أن يحوي اسم الملف «/»</translation>
    </message>
    <message>
        <source>the title has a character that no file name can contain</source>
        <translation>في العنوان محرف لا يمكن أن يحويه اسم ملف</translation>
    </message>
    <message>
        <source>the title is longer than a file name can be</source>
        <translation>العنوان أطول مما يتسع له اسم ملف</translation>
    </message>
    <message>
        <source>there is already a file named “%1” in its folder</source>
        <translation>يوجد بالفعل ملف باسم «%1» في المجلد نفسه</translation>
    </message>
    <message>
        <source>The file keeps its name “%1”: %2.</source>
        <translation>يحتفظ الملف باسمه «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>RingtoneMaker</name>
    <message>
        <source>%1 cannot be read</source>
        <translation>لا تمكن قراءة %1</translation>
    </message>
    <message>
        <source>no folder for ringtones is known</source>
        <translation>لا مجلد معروف لنغمات الرنين</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>لا تمكن كتابة %1</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerBackgroundView</name>
    <message>
        <source>Ringtone</source>
        <translation>نغمة رنين</translation>
    </message>
</context>
<context>
    <name>RingtoneMakerViewController</name>
    <message>
        <source>Outline of the recording</source>
        <translation>رسم موجة التسجيل</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;شغّل</translation>
    </message>
    <message>
        <source>Pre&amp;view</source>
        <translation>م&amp;عاينة</translation>
    </message>
    <message>
        <source>Play the selection again and again</source>
        <translation>شغّل التحديد مرارًا</translation>
    </message>
    <message>
        <source>&amp;From</source>
        <translation>&amp;من</translation>
    </message>
    <message>
        <source>Begin of the selection</source>
        <translation>بداية التحديد</translation>
    </message>
    <message>
        <source>&amp;To</source>
        <translation>إ&amp;لى</translation>
    </message>
    <message>
        <source>End of the selection</source>
        <translation>نهاية التحديد</translation>
    </message>
    <message>
        <source>Length of the selection</source>
        <translation>طول التحديد</translation>
    </message>
    <message>
        <source>Fade &amp;in</source>
        <translation>ت&amp;صاعد</translation>
    </message>
    <message>
        <source>Seconds of the fade-in</source>
        <translation>ثواني التصاعد</translation>
    </message>
    <message>
        <source> s</source>
        <translation> ث</translation>
    </message>
    <message>
        <source>Fade &amp;out</source>
        <translation>&amp;تلاشٍ</translation>
    </message>
    <message>
        <source>Seconds of the fade-out</source>
        <translation>ثواني التلاشي</translation>
    </message>
    <message>
        <source>The boxes are for listening. The ringtone fades over these times; under one second there is no fade.</source>
        <translation>الخانتان للاستماع فقط. تتصاعد النغمة وتتلاشى خلال هاتين المدتين؛ ولا تصاعد ولا تلاشٍ دون ثانية واحدة.</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Open in the player when &amp;done</source>
        <translation>ا&amp;فتح في المشغّل عند الانتهاء</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>&amp;Make Ringtone</source>
        <translation>اصنع ال&amp;نغمة</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>ألبِ&amp;ث</translation>
    </message>
    <message>
        <source>Ringtone from “%1”</source>
        <translation>نغمة رنين من «%1»</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>This recording cannot be read: %1</source>
        <translation>لا تمكن قراءة هذا التسجيل: %1</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 ثانية</translation>
    </message>
    <message>
        <source>This recording cannot be read.</source>
        <translation>لا تمكن قراءة هذا التسجيل.</translation>
    </message>
    <message>
        <source>Select a part of the recording first.</source>
        <translation>حدّد جزءًا من التسجيل أولًا.</translation>
    </message>
    <message>
        <source>This recording cannot be played.</source>
        <translation>لا يمكن تشغيل هذا التسجيل.</translation>
    </message>
    <message>
        <source>This recording cannot be played: %1</source>
        <translation>لا يمكن تشغيل هذا التسجيل: %1</translation>
    </message>
    <message>
        <source>The ringtone could not be made.</source>
        <translation>تعذّر صنع النغمة.</translation>
    </message>
    <message>
        <source>The recording is damaged. The ringtone is silent where it could not be read.</source>
        <translation>التسجيل تالف. النغمة صامتة حيث تعذّرت قراءته.</translation>
    </message>
    <message>
        <source>No player could be opened for “%1”.</source>
        <translation>تعذّر فتح مشغّل لـ «%1».</translation>
    </message>
    <message>
        <source>The ringtone is in the library.</source>
        <translation>النغمة في المكتبة.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>ابحث</translation>
    </message>
    <message>
        <source>Search titles, artists and albums</source>
        <translation>ابحث في العناوين والفنانين والألبومات</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
</context>
<context>
    <name>SplitEditView</name>
    <message>
        <source>Cut %1 of %2, %3</source>
        <translation>موضع القطع %1 من %2، %3</translation>
    </message>
    <message>
        <source>Cuts of the recording</source>
        <translation>مواضع القطع في التسجيل</translation>
    </message>
    <message>
        <source>Play position</source>
        <translation>موضع التشغيل</translation>
    </message>
    <message>
        <source>Current cut</source>
        <translation>موضع القطع الحالي</translation>
    </message>
</context>
<context>
    <name>SplitPartsModel</name>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>البداية</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>المدة</translation>
    </message>
</context>
<context>
    <name>SplitWnd</name>
    <message>
        <source>Split at Silences</source>
        <translation>التقسيم عند الصمت</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Play time</source>
        <translation>زمن التشغيل</translation>
    </message>
    <message>
        <source>Visible part of the recording</source>
        <translation>الجزء الظاهر من التسجيل</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
    <message>
        <source>&amp;Listen to Cut</source>
        <translation>ا&amp;ستمع إلى القطع</translation>
    </message>
    <message>
        <source>Play from two seconds before the cut to two seconds behind it</source>
        <translation>شغّل من ثانيتين قبل موضع القطع إلى ثانيتين بعده</translation>
    </message>
    <message>
        <source>&amp;Add Cut</source>
        <translation>أ&amp;ضف قطعًا</translation>
    </message>
    <message>
        <source>Cut at the play position</source>
        <translation>اقطع عند موضع التشغيل</translation>
    </message>
    <message>
        <source>Re&amp;move Cut</source>
        <translation>أ&amp;زل القطع</translation>
    </message>
    <message>
        <source>Take the current cut away</source>
        <translation>أزل موضع القطع الحالي</translation>
    </message>
    <message>
        <source>Rese&amp;t Cuts</source>
        <translation>أ&amp;عِد ضبط القطع</translation>
    </message>
    <message>
        <source>Take back the cuts that you added, moved and removed</source>
        <translation>تراجع عما أضفته ونقلته وأزلته من مواضع القطع</translation>
    </message>
    <message>
        <source>L&amp;evel</source>
        <translation>المس&amp;توى</translation>
    </message>
    <message>
        <source>Level below which it is silent, in decibels</source>
        <translation>المستوى الذي يُعدّ ما دونه صمتًا، بالديسيبل</translation>
    </message>
    <message>
        <source>Value of Level</source>
        <translation>قيمة المستوى</translation>
    </message>
    <message>
        <source>Len&amp;gth</source>
        <translation>ال&amp;مدة</translation>
    </message>
    <message>
        <source>Length of the shortest silence, in tenths of a second</source>
        <translation>مدة أقصر صمت، بأعشار الثانية</translation>
    </message>
    <message>
        <source>Value of Length</source>
        <translation>قيمة المدة</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>الأجزاء</translation>
    </message>
    <message>
        <source>&amp;Delete the recording when its parts are written</source>
        <translation>ا&amp;حذف التسجيل بعد كتابة أجزائه</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>&amp;Split</source>
        <translation>&amp;قسّم</translation>
    </message>
</context>
<context>
    <name>SplitWndController</name>
    <message>
        <source>%1 dB</source>
        <translation>%1 ديسيبل</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>Searching for silences… %1 %</source>
        <translation>يجري البحث عن مواضع الصمت… %1 %</translation>
    </message>
    <message>
        <source>No silence found at this level. Choose a higher level, or add cuts yourself.</source>
        <translation>لم يُعثر على صمت عند هذا المستوى. اختر مستوى أعلى، أو أضف مواضع القطع بنفسك.</translation>
    </message>
    <message>
        <source>No silence is long enough. The longest silence found: %1 s.</source>
        <translation>لا صمت طويل بما يكفي. أطول صمت وُجد: %1 ث.</translation>
    </message>
    <message>
        <source>One cut. The longest silence found: %1 s.</source>
        <translation>موضع قطع واحد. أطول صمت وُجد: %1 ث.</translation>
    </message>
    <message numerus="yes">
        <source>%n cuts. The longest silence found: %1 s.</source>
        <translation>
            <numerusform>لا مواضع قطع. أطول صمت وُجد: %1 ث.</numerusform>
            <numerusform>موضع قطع واحد. أطول صمت وُجد: %1 ث.</numerusform>
            <numerusform>موضعا قطع. أطول صمت وُجد: %1 ث.</numerusform>
            <numerusform>%n مواضع قطع. أطول صمت وُجد: %1 ث.</numerusform>
            <numerusform>%n موضع قطع. أطول صمت وُجد: %1 ث.</numerusform>
            <numerusform>%n موضع قطع. أطول صمت وُجد: %1 ث.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>ألبِث</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>شغّل</translation>
    </message>
    <message>
        <source>Writing the parts…</source>
        <translation>تجري كتابة الأجزاء…</translation>
    </message>
    <message>
        <source>The recording was not split.</source>
        <translation>لم يُقسَّم التسجيل.</translation>
    </message>
</context>
<context>
    <name>SpokenField</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>StatusBarItem</name>
    <message>
        <source>Cut to Another Recording</source>
        <translation>انتقل إلى تسجيل آخر</translation>
    </message>
    <message>
        <source>Show Sonaphex</source>
        <translation>اعرض Sonaphex</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>أنهِ</translation>
    </message>
    <message>
        <source>Sonaphex: %1</source>
        <translation>Sonaphex: %1</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
</context>
<context>
    <name>TrackListModel</name>
    <message>
        <source>The file is no longer there.</source>
        <translation>لم يعد الملف موجودًا.</translation>
    </message>
    <message>
        <source>Only files with a tick are burned</source>
        <translation>لا تُحرق إلا الملفات المعلَّمة</translation>
    </message>
    <message>
        <source>Burn</source>
        <translation>احرق</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>المدة</translation>
    </message>
</context>
<context>
    <name>WaitWnd</name>
    <message>
        <source>Please wait</source>
        <translation>يُرجى الانتظار</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
</context>
</TS>
