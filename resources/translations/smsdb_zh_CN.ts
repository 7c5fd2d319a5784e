<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>smsdb</name>
    <message>
        <source>%1 (see smsdb %2 --help)</source>
        <translation>%1（请看 smsdb %2 --help）</translation>
    </message>
    <message>
        <source>%1 takes %2 name(s) (see smsdb %1 --help)</source>
        <translation>%1 要 %2 个名称（请看 smsdb %1 --help）</translation>
    </message>
    <message>
        <source>no command (see smsdb --help)</source>
        <translation>没有命令（请看 smsdb --help）</translation>
    </message>
    <message>
        <source>unknown command: %1 (see smsdb --help)</source>
        <translation>没有这个命令：%1（请看 smsdb --help）</translation>
    </message>
</context>
</TS>
