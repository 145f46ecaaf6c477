<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Features</source>
        <translation>الورق والجودة</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>الورق</translation>
    </message>
    <message>
        <source>Two-Sided Printing</source>
        <translation>الطباعة على الوجهين</translation>
    </message>
    <message>
        <source>&amp;Feed</source>
        <translation>التغذية (&amp;F)</translation>
    </message>
    <message>
        <source>Paper feed</source>
        <translation>تغذية الورق</translation>
    </message>
    <message>
        <source>S&amp;heet paper</source>
        <translation>ورق مقطوع (&amp;H)</translation>
    </message>
    <message>
        <source>Sheet paper</source>
        <translation>ورق مقطوع</translation>
    </message>
    <message>
        <source>Paper roll</source>
        <translation>لفافة ورق</translation>
    </message>
    <message>
        <source>Roll &amp;width</source>
        <translation>عرض اللفافة (&amp;W)</translation>
    </message>
    <message>
        <source>Roll width</source>
        <translation>عرض اللفافة</translation>
    </message>
    <message>
        <source>&amp;Surface</source>
        <translation>السطح (&amp;S)</translation>
    </message>
    <message>
        <source>Surface of the roll</source>
        <translation>سطح اللفافة</translation>
    </message>
    <message>
        <source>The numbers are the surface codes of the paper.</source>
        <translation>الأرقام هي رموز سطح الورق.</translation>
    </message>
    <message>
        <source>O&amp;verspill</source>
        <translation>الزيادة (&amp;V)</translation>
    </message>
    <message>
        <source>Overspill in millimetres</source>
        <translation>الزيادة بالميليمتر</translation>
    </message>
    <message>
        <source>How far the picture reaches beyond the edges of the roll, so that no white edge remains.</source>
        <translation>مقدار تجاوز الصورة حواف اللفافة، كي لا تبقى حافة بيضاء.</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>مم</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>الجودة</translation>
    </message>
    <message>
        <source>Reso&amp;lution</source>
        <translation>الدقة (&amp;L)</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>&amp;Tone</source>
        <translation>التدرج (&amp;T)</translation>
    </message>
    <message>
        <source>Tone</source>
        <translation>التدرج</translation>
    </message>
    <message>
        <source>Sides</source>
        <translation>الأوجه</translation>
    </message>
    <message>
        <source>Two-s&amp;ided</source>
        <translation>على الوجهين (&amp;I)</translation>
    </message>
    <message>
        <source>Two-sided printing</source>
        <translation>الطباعة على الوجهين</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>التجليد</translation>
    </message>
    <message>
        <source>&amp;Binding margin</source>
        <translation>هامش التجليد (&amp;B)</translation>
    </message>
    <message>
        <source>Binding margin</source>
        <translation>هامش التجليد</translation>
    </message>
    <message>
        <source>Wi&amp;dth</source>
        <translation>العرض (&amp;D)</translation>
    </message>
    <message>
        <source>Width of the binding margin in millimetres</source>
        <translation>عرض هامش التجليد بالميليمتر</translation>
    </message>
    <message>
        <source>How much of the page stays free for the binding.</source>
        <translation>ما يبقى خاليًا من الصفحة للتجليد.</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets. The binding margin is the edge of the page as you see it on the screen; the picture keeps clear of it.</source>
        <translation>تحتاج الطباعة على الوجهين إلى أوراق مقطوعة. هامش التجليد هو حافة الصفحة كما تراها على الشاشة؛ وتبتعد الصورة عنه.</translation>
    </message>
    <message>
        <source>The printer is being asked for its papers</source>
        <translation>تُسأل الطابعة عن ورقها</translation>
    </message>
    <message>
        <source>Last updated %@</source>
        <translation>آخر تحديث %@</translation>
    </message>
    <message>
        <source>never</source>
        <translation>لم يحدث قط</translation>
    </message>
    <message>
        <source>The sheet feed was not available when this page was made.</source>
        <translation>لم تكن تغذية الأوراق المقطوعة متاحة عند إنشاء هذه الصفحة.</translation>
    </message>
    <message>
        <source>The printer has no cut sheets loaded.</source>
        <translation>لا أوراق مقطوعة محمّلة في الطابعة.</translation>
    </message>
    <message>
        <source>The printer has no paper roll loaded.</source>
        <translation>لا لفافة ورق محمّلة في الطابعة.</translation>
    </message>
    <message>
        <source>Only for cut sheets. Choose the sheet feed first.</source>
        <translation>للأوراق المقطوعة فقط. اختر تغذية الأوراق المقطوعة أولًا.</translation>
    </message>
    <message>
        <source>Only for paper rolls. Choose the roll feed first.</source>
        <translation>للفائف الورق فقط. اختر تغذية اللفافة أولًا.</translation>
    </message>
    <message>
        <source>No roll of this width has this surface.</source>
        <translation>لا لفافة بهذا العرض لها هذا السطح.</translation>
    </message>
    <message>
        <source>The chosen paper cannot be printed at this resolution.</source>
        <translation>لا يمكن الطباعة على الورق المختار بهذه الدقة.</translation>
    </message>
    <message>
        <source>The loaded papers have one tone only.</source>
        <translation>للورق المحمّل تدرج واحد فقط.</translation>
    </message>
    <message>
        <source>The loaded papers do not have this tone.</source>
        <translation>ليس للورق المحمّل هذا التدرج.</translation>
    </message>
    <message>
        <source>Two-sided printing needs cut sheets and a printer with a duplex unit.</source>
        <translation>تحتاج الطباعة على الوجهين إلى أوراق مقطوعة وإلى طابعة فيها وحدة طباعة مزدوجة.</translation>
    </message>
    <message>
        <source>Choose two-sided printing first.</source>
        <translation>اختر الطباعة على الوجهين أولًا.</translation>
    </message>
    <message>
        <source>Choose a binding margin first.</source>
        <translation>اختر هامش تجليد أولًا.</translation>
    </message>
    <message>
        <source>The sheet is not turned over this edge.</source>
        <translation>لا تُقلب الورقة على هذه الحافة.</translation>
    </message>
    <message>
        <source>Cut Sheet</source>
        <translation>ورق مقطوع</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>لفافة</translation>
    </message>
    <message>
        <source>Long Edge</source>
        <translation>الحافة الطويلة</translation>
    </message>
    <message>
        <source>Short Edge</source>
        <translation>الحافة القصيرة</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>1 - Gloss</source>
        <translation>1 – لامع</translation>
    </message>
    <message>
        <source>2 - Satin</source>
        <translation>2 – ساتان</translation>
    </message>
    <message>
        <source>3 - Matte</source>
        <translation>3 – مطفي</translation>
    </message>
    <message>
        <source>4 - Thin Silk</source>
        <translation>4 – حرير رقيق</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>قياسي</translation>
    </message>
    <message>
        <source>Vivid</source>
        <translation>حيوي</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>ناعم</translation>
    </message>
    <message>
        <source>Warm</source>
        <translation>دافئ</translation>
    </message>
    <message>
        <source>Cool</source>
        <translation>بارد</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>بني داكن</translation>
    </message>
    <message>
        <source>Black and White</source>
        <translation>أبيض وأسود</translation>
    </message>
    <message>
        <source>Deep Black</source>
        <translation>أسود عميق</translation>
    </message>
    <message>
        <source>High Key</source>
        <translation>إضاءة عالية</translation>
    </message>
    <message>
        <source>Actual Size</source>
        <translation>الحجم الفعلي</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>ملاءمة الصفحة</translation>
    </message>
    <message>
        <source>Fill Page</source>
        <translation>ملء الصفحة</translation>
    </message>
    <message>
        <source>PaperFeed</source>
        <translation>تغذية الورق</translation>
    </message>
    <message>
        <source>PaperName</source>
        <translation>ورق مقطوع</translation>
    </message>
    <message>
        <source>PaperWidth</source>
        <translation>عرض اللفافة</translation>
    </message>
    <message>
        <source>PaperSurface</source>
        <translation>السطح</translation>
    </message>
    <message>
        <source>PaperTone</source>
        <translation>التدرج</translation>
    </message>
    <message>
        <source>Overspill</source>
        <translation>الزيادة</translation>
    </message>
    <message>
        <source>BindingMargin</source>
        <translation>هامش التجليد</translation>
    </message>
    <message>
        <source>BindingWidth</source>
        <translation>عرض هامش التجليد</translation>
    </message>
    <message>
        <source>ResizeOption</source>
        <translation>حجم الصورة</translation>
    </message>
    <message>
        <source>TwoSided</source>
        <translation>الطباعة على الوجهين</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>وحدة الطباعة المزدوجة</translation>
    </message>
    <message>
        <source>HalvernLastResolution</source>
        <translation>آخر دقة</translation>
    </message>
</context>
</TS>
