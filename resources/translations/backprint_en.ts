<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>[YYYY]</source>
        <translation>Year (4 digits)</translation>
    </message>
    <message>
        <source>[YY]</source>
        <translation>Year (2 digits)</translation>
    </message>
    <message>
        <source>[DD]</source>
        <translation>Day (2 digits)</translation>
    </message>
    <message>
        <source>[D]</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>[MM]</source>
        <translation>Month (2 digits)</translation>
    </message>
    <message>
        <source>[M]</source>
        <translation>Month</translation>
    </message>
    <message>
        <source>[C]</source>
        <translation>Counter</translation>
    </message>
    <message>
        <source>[F]</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>[P]</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>[U]</source>
        <translation>User</translation>
    </message>
    <message>
        <source>CVP1</source>
        <translation>Backprint line 1</translation>
    </message>
    <message>
        <source>CVP2</source>
        <translation>Backprint line 2</translation>
    </message>
    <message>
        <source>EnableCVP1</source>
        <translation>Print backprint line 1</translation>
    </message>
    <message>
        <source>EnableCVP2</source>
        <translation>Print backprint line 2</translation>
    </message>
    <message>
        <source>DebugLog</source>
        <translation>Diagnostic log</translation>
    </message>
</context>
</TS>
