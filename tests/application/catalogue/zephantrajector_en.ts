<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
<context>
    <name>MainWindow</name>
    <message>
        <source>Plan de vol</source>
        <translation>Flight plan of the test catalogue</translation>
    </message>
</context>
</TS>
