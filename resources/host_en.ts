<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
    <context>
        <name>schedules::host::ProjectAnswers</name>
        <message numerus="yes">
            <source>%n value(s) changed by someone else were not saved.</source>
            <translation>
                <numerusform>%n value changed by someone else was not saved.</numerusform>
                <numerusform>%n values changed by someone else were not saved.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>schedules::host::ProjectWindow</name>
        <message numerus="yes">
            <source>%n value(s) saved</source>
            <translation>
                <numerusform>%n value saved</numerusform>
                <numerusform>%n values saved</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n value(s) were changed by someone else and are shown now.</source>
            <translation>
                <numerusform>%n value was changed by someone else and is shown now.</numerusform>
                <numerusform>%n values were changed by someone else and are shown now.</numerusform>
            </translation>
        </message>
    </context>
</TS>
