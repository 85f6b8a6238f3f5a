<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>QIODevice</name>
    <message>
        <source>No such file or directory</source>
        <translation>파일이나 폴더가 없습니다</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>파일을 다룰 권한이 없습니다</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>디스크에 남은 공간이 없습니다</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>열려 있는 파일이 너무 많습니다</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>알 수 없는 오류입니다</translation>
    </message>
    <message>
        <source>file to open is a directory</source>
        <translation>파일이 아니라 폴더입니다</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
</TS>
