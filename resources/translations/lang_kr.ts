<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name>ConfigDialog</name>
    <message>
        <source>환경설정</source>
        <translation>환경설정</translation>
    </message>
    <message>
        <source>회사정보</source>
        <translation>회사정보</translation>
    </message>
    <message>
        <source>회사명</source>
        <translation>회사명</translation>
    </message>
    <message>
        <source>판매처명</source>
        <translation>판매처명</translation>
    </message>
    <message>
        <source>판매사이트</source>
        <translation>판매사이트</translation>
    </message>
    <message>
        <source>http://www.example.com</source>
        <translation>http://www.example.com</translation>
    </message>
    <message>
        <source>우편번호</source>
        <translation>우편번호</translation>
    </message>
    <message>
        <source>999-9999; </source>
        <translation>;</translation>
    </message>
    <message>
        <source>###-####</source>
        <translation>#####</translation>
    </message>
    <message>
        <source>주소</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>전화번호</source>
        <translation>전화번호</translation>
    </message>
    <message>
        <source>99-0999-9999; </source>
        <translation>;</translation>
    </message>
    <message>
        <source>##-####-####</source>
        <translation>###-####-####</translation>
    </message>
    <message>
        <source>팩스번호</source>
        <translation>팩스번호</translation>
    </message>
    <message>
        <source>전자우편</source>
        <translation>전자우편</translation>
    </message>
    <message>
        <source>shop@example.com</source>
        <translation>shop@example.com</translation>
    </message>
    <message>
        <source>변환설정 관리</source>
        <translation>변환설정 관리</translation>
    </message>
    <message>
        <source>추가</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>새로운 설정을 추가합니다</source>
        <translation>새로운 설정을 추가합니다</translation>
    </message>
    <message>
        <source>변경</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>선택된 설정을 변경합니다</source>
        <translation>선택된 설정을 변경합니다</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>선택된 설정을 삭제합니다</source>
        <translation>선택된 설정을 삭제합니다</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>변경된 사항을 저장합니다</source>
        <translation>변경된 사항을 저장합니다</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>변경된 사항을 저장하지 않습니다</source>
        <translation>변경된 사항을 저장하지 않습니다</translation>
    </message>
</context>
<context>
    <name>ConversionRun</name>
    <message>
        <source>Checking all fields...</source>
        <translation>입력 내용을 확인하는 중...</translation>
    </message>
    <message>
        <source>Loading settings...</source>
        <translation>변환설정을 불러오는 중...</translation>
    </message>
    <message>
        <source>Processing input file(s)...</source>
        <translation>입력파일을 처리하는 중...</translation>
    </message>
    <message>
        <source>Generating output file...</source>
        <translation>출력파일을 만드는 중...</translation>
    </message>
    <message>
        <source>Start converting...</source>
        <translation>변환을 시작합니다...</translation>
    </message>
    <message>
        <source>Deleting duplication and merging items...</source>
        <translation>중복을 제거하고 항목을 병합하는 중...</translation>
    </message>
    <message>
        <source>Creating PDF file...</source>
        <translation>명세서 PDF를 만드는 중...</translation>
    </message>
    <message>
        <source>Saving PDF file...</source>
        <translation>명세서 PDF를 저장하는 중...</translation>
    </message>
    <message>
        <source>Converting succeeded.</source>
        <translation>변환이 완료되었습니다.</translation>
    </message>
    <message>
        <source>Input file is required.</source>
        <translation>입력파일을 추가해 주십시오.</translation>
    </message>
    <message>
        <source>Output file is required.</source>
        <translation>출력파일을 지정해 주십시오.</translation>
    </message>
    <message>
        <source>Choose a convert setting.</source>
        <translation>변환설정을 선택해 주십시오.</translation>
    </message>
    <message>
        <source>There is no input file information in setting. Please check convert settings.</source>
        <translation>변환설정에 입력양식이 없습니다. 변환설정을 확인해 주십시오.</translation>
    </message>
    <message>
        <source>Cannot open input file:
%1.</source>
        <translation>입력파일을 열 수 없습니다:
%1.</translation>
    </message>
    <message>
        <source>The file is too large</source>
        <translation>파일이 너무 큽니다</translation>
    </message>
    <message>
        <source>Input file dose not match with setting.
Please check the input file(s).</source>
        <translation>입력파일이 변환설정의 입력양식과 맞지 않습니다.
입력파일을 확인해 주십시오.</translation>
    </message>
    <message>
        <source>Number of input files is not matched with setting.</source>
        <translation>입력파일의 개수가 변환설정과 다릅니다. 입력양식마다 파일을 하나씩 추가해 주십시오.</translation>
    </message>
    <message>
        <source>Cannot find proper source file.</source>
        <translation>입력양식에 맞는 입력파일을 찾을 수 없습니다. 입력파일을 확인해 주십시오.</translation>
    </message>
    <message>
        <source>Cannot open output file:
%1.</source>
        <translation>출력파일을 열 수 없습니다:
%1.</translation>
    </message>
    <message>
        <source>Cannot write output file:
%1.</source>
        <translation>출력파일을 쓸 수 없습니다:
%1.</translation>
    </message>
    <message>
        <source>Not enough memory for this conversion.
Please check the input file(s) and the matching keys of the setting.</source>
        <translation>변환에 필요한 메모리가 부족합니다.
입력파일과 변환설정의 매칭 항목을 확인해 주십시오.</translation>
    </message>
</context>
<context>
    <name>ConvertSettingDialog</name>
    <message>
        <source>변환설정</source>
        <translation>변환설정</translation>
    </message>
    <message>
        <source>설정 이름:</source>
        <translation>설정 이름:</translation>
    </message>
    <message>
        <source>현재 설정을 식별할 이름을 지정합니다</source>
        <translation>현재 설정을 식별할 이름을 지정합니다</translation>
    </message>
    <message>
        <source>회사정보</source>
        <translation>회사정보</translation>
    </message>
    <message>
        <source>항목을 출력양식으로 드래그 하여 추가합니다</source>
        <translation>항목을 출력양식으로 드래그하여 추가합니다</translation>
    </message>
    <message>
        <source>회사명</source>
        <translation>회사명</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사명이 추가됩니다</source>
        <translation>출력양식으로 드래그하면 회사명이 추가됩니다</translation>
    </message>
    <message>
        <source>판매처명</source>
        <translation>판매처명</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 판매처명이 추가됩니다</source>
        <translation>출력양식으로 드래그하면 판매처명이 추가됩니다</translation>
    </message>
    <message>
        <source>판매사이트</source>
        <translation>판매사이트</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 판매사이트가 추가됩니다</source>
        <translation>출력양식으로 드래그하면 판매사이트가 추가됩니다</translation>
    </message>
    <message>
        <source>우편번호</source>
        <translation>우편번호</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 우편번호가 추가됩니다</source>
        <translation>출력양식으로 드래그하면 회사 우편번호가 추가됩니다</translation>
    </message>
    <message>
        <source>주소</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 주소가 추가됩니다</source>
        <translation>출력양식으로 드래그하면 회사 주소가 추가됩니다</translation>
    </message>
    <message>
        <source>전화번호</source>
        <translation>전화번호</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 전화번호가 추가됩니다</source>
        <translation>출력양식으로 드래그하면 회사 전화번호가 추가됩니다</translation>
    </message>
    <message>
        <source>팩스번호</source>
        <translation>팩스번호</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 팩스번호가 추가됩니다</source>
        <translation>출력양식으로 드래그하면 회사 팩스번호가 추가됩니다</translation>
    </message>
    <message>
        <source>전자우편</source>
        <translation>전자우편</translation>
    </message>
    <message>
        <source>출력양식으로 드래그 하면 회사 이메일주소가 추가됩니다</source>
        <translation>출력양식으로 드래그하면 회사 이메일주소가 추가됩니다</translation>
    </message>
    <message>
        <source>입력양식</source>
        <translation>입력양식</translation>
    </message>
    <message>
        <source>항목을 출력양식으로 드래그하여 추가합니다</source>
        <translation>항목을 출력양식으로 드래그하여 추가합니다</translation>
    </message>
    <message>
        <source>선택된 양식파일의 첫 항목으로 이동합니다</source>
        <translation>선택된 양식파일의 첫 항목으로 이동합니다</translation>
    </message>
    <message>
        <source>입력양식 추가</source>
        <translation>입력양식 추가</translation>
    </message>
    <message>
        <source>입력될 양식을 파일에서 불러와 추가합니다</source>
        <translation>입력될 양식을 파일에서 불러와 추가합니다</translation>
    </message>
    <message>
        <source>입력양식 비우기</source>
        <translation>입력양식 비우기</translation>
    </message>
    <message>
        <source>입력양식을 초기화 합니다</source>
        <translation>입력양식과 출력항목을 모두 비웁니다</translation>
    </message>
    <message>
        <source>출력양식</source>
        <translation>출력양식</translation>
    </message>
    <message>
        <source>CSV 파일</source>
        <translation>CSV 파일</translation>
    </message>
    <message>
        <source>항목 추가</source>
        <translation>항목 추가</translation>
    </message>
    <message>
        <source>새로운 출력항목을 마지막에 추가합니다</source>
        <translation>새로운 출력항목을 마지막에 추가합니다</translation>
    </message>
    <message>
        <source>항목 삽입</source>
        <translation>항목 삽입</translation>
    </message>
    <message>
        <source>새로운 출력항목을 선택된 위치에 삽입합니다</source>
        <translation>새로운 출력항목을 선택된 위치에 삽입합니다</translation>
    </message>
    <message>
        <source>항목 삭제</source>
        <translation>항목 삭제</translation>
    </message>
    <message>
        <source>선택된 항목을 삭제합니다</source>
        <translation>선택된 항목을 삭제합니다</translation>
    </message>
    <message>
        <source>구매 명세서 생성</source>
        <translation>구매명세서 생성</translation>
    </message>
    <message>
        <source>구매 명세서 PDF파일을 생성합니다</source>
        <translation>구매명세서 PDF 파일을 생성합니다</translation>
    </message>
    <message>
        <source>선택된 항목을 왼쪽으로 이동합니다</source>
        <translation>선택된 항목을 왼쪽으로 이동합니다</translation>
    </message>
    <message>
        <source>선택된 항목을 오른쪽으로 이동합니다</source>
        <translation>선택된 항목을 오른쪽으로 이동합니다</translation>
    </message>
    <message>
        <source>구매명세서</source>
        <translation>구매명세서</translation>
    </message>
    <message>
        <source>제목 :</source>
        <translation>제목 :</translation>
    </message>
    <message>
        <source>명세서 상단에 출력될 제목을 지정합니다</source>
        <translation>명세서 상단에 출력될 제목을 지정합니다</translation>
    </message>
    <message>
        <source>글꼴 :</source>
        <translation>글꼴 :</translation>
    </message>
    <message>
        <source>명세서에 사용될 글꼴을 지정합니다.</source>
        <translation>명세서에 사용될 글꼴을 지정합니다.</translation>
    </message>
    <message>
        <source>회사정보 출력여부</source>
        <translation>회사정보 출력여부</translation>
    </message>
    <message>
        <source>체크하여 회사명을 출력합니다.</source>
        <translation>체크하여 회사명을 출력합니다.</translation>
    </message>
    <message>
        <source>체크하여 판매처명을 출력합니다.</source>
        <translation>체크하여 판매처명을 출력합니다.</translation>
    </message>
    <message>
        <source>체크하여 판매사이트 주소를 출력합니다.</source>
        <translation>체크하여 판매사이트 주소를 출력합니다.</translation>
    </message>
    <message>
        <source>체크하여 우편번호를 출력합니다.</source>
        <translation>체크하여 우편번호를 출력합니다.</translation>
    </message>
    <message>
        <source>체크하여 주소를 출력합니다.</source>
        <translation>체크하여 주소를 출력합니다.</translation>
    </message>
    <message>
        <source>체크하여 전화번호를 출력합니다.</source>
        <translation>체크하여 전화번호를 출력합니다.</translation>
    </message>
    <message>
        <source>체크하여 팩스번호를 출력합니다.</source>
        <translation>체크하여 팩스번호를 출력합니다.</translation>
    </message>
    <message>
        <source>체크하여 전자우편 주소를 출력합니다.</source>
        <translation>체크하여 전자우편 주소를 출력합니다.</translation>
    </message>
    <message>
        <source>구매감사 문구 :</source>
        <translation>구매감사 문구 :</translation>
    </message>
    <message>
        <source>수신자 주소 아래에 표시될 구매감사 문구를 지정합니다</source>
        <translation>수신자 주소 아래에 표시될 구매감사 문구를 지정합니다</translation>
    </message>
    <message>
        <source>명세서 안내문구 :</source>
        <translation>명세서 안내문구 :</translation>
    </message>
    <message>
        <source>명세서 관련 안내문구를 지정합니다</source>
        <translation>명세서 관련 안내문구를 지정합니다</translation>
    </message>
    <message>
        <source>저장</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>변경된 사항을 저장합니다</source>
        <translation>변경된 사항을 저장합니다</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>변경된 사항을 저장하지 않습니다</source>
        <translation>변경된 사항을 저장하지 않습니다</translation>
    </message>
    <message>
        <source>Load File(s)</source>
        <translation>파일 불러오기</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation>CSV 파일 (*.csv);;모든 파일 (*.*)</translation>
    </message>
    <message>
        <source>Cannot open file &apos;%1&apos;:
%2.</source>
        <translation>&apos;%1&apos; 파일을 열 수 없습니다:
%2.</translation>
    </message>
    <message>
        <source>The file is too large</source>
        <translation>파일이 너무 큽니다</translation>
    </message>
    <message>
        <source>The first line has no headings</source>
        <translation>첫 줄에 항목 이름이 없습니다</translation>
    </message>
    <message>
        <source>Matching key was not selected</source>
        <translation>매칭할 항목을 양쪽에서 하나씩 선택해 주십시오</translation>
    </message>
    <message>
        <source>Name field is required.</source>
        <translation>설정 이름을 입력해 주십시오.</translation>
    </message>
    <message>
        <source>PDF title field is required.</source>
        <translation>구매명세서의 제목을 입력해 주십시오.</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
</context>
<context>
    <name>EditConditionsDialog</name>
    <message>
        <source>조건설정</source>
        <translation>조건설정</translation>
    </message>
    <message>
        <source>항목</source>
        <translation>항목</translation>
    </message>
    <message>
        <source>삭제</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>선택된 조건을 삭제합니다</source>
        <translation>선택된 조건을 삭제합니다</translation>
    </message>
    <message>
        <source>조건</source>
        <translation>조건</translation>
    </message>
    <message>
        <source>조건종류</source>
        <translation>조건종류</translation>
    </message>
    <message>
        <source>문자열</source>
        <translation>문자열</translation>
    </message>
    <message>
        <source>숫자열</source>
        <translation>숫자열</translation>
    </message>
    <message>
        <source>검색</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>검색 방법을 선택합니다</source>
        <translation>검색 방법을 선택합니다</translation>
    </message>
    <message>
        <source>과 일치</source>
        <translation>과 일치</translation>
    </message>
    <message>
        <source>과 불일치</source>
        <translation>과 불일치</translation>
    </message>
    <message>
        <source>을 포함</source>
        <translation>을 포함</translation>
    </message>
    <message>
        <source>을 미포함</source>
        <translation>을 미포함</translation>
    </message>
    <message>
        <source>으로 시작</source>
        <translation>으로 시작</translation>
    </message>
    <message>
        <source>으로 시작하지 않음</source>
        <translation>으로 시작하지 않음</translation>
    </message>
    <message>
        <source>으로 끝</source>
        <translation>으로 끝남</translation>
    </message>
    <message>
        <source>으로 끝나지 않음</source>
        <translation>으로 끝나지 않음</translation>
    </message>
    <message>
        <source>최소값</source>
        <translation>최솟값</translation>
    </message>
    <message>
        <source>최소값의 제한 방법을 선택합니다</source>
        <translation>최솟값의 제한 방법을 선택합니다</translation>
    </message>
    <message>
        <source>초과</source>
        <translation>초과</translation>
    </message>
    <message>
        <source>이상</source>
        <translation>이상</translation>
    </message>
    <message>
        <source>제한없음</source>
        <translation>제한없음</translation>
    </message>
    <message>
        <source>최대값</source>
        <translation>최댓값</translation>
    </message>
    <message>
        <source>최대값의 제한 방법을 선택합니다</source>
        <translation>최댓값의 제한 방법을 선택합니다</translation>
    </message>
    <message>
        <source>미만</source>
        <translation>미만</translation>
    </message>
    <message>
        <source>이하</source>
        <translation>이하</translation>
    </message>
    <message>
        <source>적용</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>설정된 조건을 저장합니다</source>
        <translation>설정된 조건을 저장합니다</translation>
    </message>
    <message>
        <source>*항목별 조건은 적용 버튼을 클릭하셔야 설정이 저장됩니다!</source>
        <translation>*항목별 조건은 적용 버튼을 클릭하셔야 저장됩니다!</translation>
    </message>
    <message>
        <source>조건의 조합 방법을 선택합니다</source>
        <translation>조건의 조합 방법을 선택합니다</translation>
    </message>
    <message>
        <source>위 조건을 모두 만족시 출력</source>
        <translation>위 조건을 모두 만족하면 출력</translation>
    </message>
    <message>
        <source>위 조건을 하나라도 만족시 출력</source>
        <translation>위 조건을 하나라도 만족하면 출력</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Setting has saved</source>
        <translation>조건을 저장했습니다</translation>
    </message>
</context>
<context>
    <name>EditOutputItemsDialog</name>
    <message>
        <source>항목변경</source>
        <translation>항목변경</translation>
    </message>
    <message>
        <source>드래그하여 순서변경이 가능합니다</source>
        <translation>드래그하여 순서변경이 가능합니다</translation>
    </message>
    <message>
        <source>선택된 항목을 제거합니다</source>
        <translation>선택된 항목을 제거합니다</translation>
    </message>
    <message>
        <source>항목사이 연결자 삽입</source>
        <translation>항목 사이 연결자 삽입</translation>
    </message>
    <message>
        <source>항목들이 연결될 때 항목간에 설정된 문자를 삽입합니다</source>
        <translation>항목 사이에 지정된 문자를 삽입합니다</translation>
    </message>
    <message>
        <source>삽입될 문자를 지정합니다</source>
        <translation>삽입될 문자를 지정합니다</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>변경사항을 저장합니다</source>
        <translation>변경사항을 저장합니다</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>변경사항을 저장하지 않습니다</source>
        <translation>변경사항을 저장하지 않습니다</translation>
    </message>
</context>
<context>
    <name>InfoDialog</name>
    <message>
        <source>쿼린 컨버터 정보</source>
        <translation>쿼린 컨버터 정보</translation>
    </message>
    <message>
        <source>프로그램 정보</source>
        <translation>프로그램 정보</translation>
    </message>
    <message>
        <source>쿼린 컨버터</source>
        <translation>쿼린 컨버터</translation>
    </message>
    <message>
        <source>버전 :</source>
        <translation>버전 :</translation>
    </message>
    <message>
        <source>제작일 : 2011-10-04</source>
        <translation>제작일 : 2011-10-04</translation>
    </message>
    <message>
        <source>만든 곳 : 벨모라 (Velmora)</source>
        <translation>만든 곳 : 벨모라 (Velmora)</translation>
    </message>
    <message>
        <source>이 프로그램의 모든 권리는 벨모라에 있습니다.</source>
        <translation>이 프로그램의 모든 권리는 벨모라에 있습니다.</translation>
    </message>
    <message>
        <source>저작권 정보</source>
        <translation>저작권 정보</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Version : </source>
        <translation>버전 : </translation>
    </message>
    <message>
        <source>쿼린 컨버터 이용 안내

1. 이용 조건
쿼린 컨버터의 저작권은 벨모라(Velmora)에 있습니다. 누구나 무료로 설치하여 가게와 회사의 일에 쓸 수 있습니다. 고치지 않은 꾸러미 그대로라면 다른 사람에게 나누어 주어도 됩니다. 고친 프로그램을 나누어 주거나 프로그램을 팔려면 벨모라의 허락을 받아야 합니다. 자신이 쓰려고 프로그램을 고치는 일과, 바꾼 라이브러리의 잘못을 찾으려고 프로그램을 분석하는 일은 허락 없이 할 수 있습니다.
이 프로그램은 있는 그대로 제공하며, 법이 허용하는 한 어떤 보증도 하지 않습니다. 변환된 파일은 쓰기 전에 꼭 확인해 주십시오.

2. Qt 라이브러리
이 프로그램은 Qt 5.15 라이브러리(Qt Core, Gui, Widgets, Network)를 고치지 않고 동적으로 연결하여 씁니다. Qt의 저작권은 The Qt Company Ltd.와 그 밖의 기여자에게 있습니다. Qt는 GNU 약소 일반 공중 사용 허가서(LGPL) 제3판에 따라 쓸 수 있습니다. 허가서의 전문은 설치 폴더의 LGPL.TXT 파일에, 이 허가서가 바탕으로 삼는 GNU 일반 공중 사용 허가서(GPL) 제3판의 전문은 GPL.TXT 파일에 있습니다. Qt 라이브러리는 사용자가 다른 판으로 바꾸어 쓸 수 있습니다. languages 폴더의 파일에 함께 들어 있는 표준 단추와 파일 창의 번역은 Qt의 것으로, Qt 예외 1.0이 붙은 GPL 제3판에 따라 쓸 수 있습니다. Qt의 소스 코드는 Qt를 배포하는 곳(https://www.qt.io 또는 사용하는 운영체제의 배포처)에서 받을 수 있습니다.

3. 설치 꾸러미
Debian용 설치 꾸러미는 CMake에 들어 있는 CPack(BSD 3조항 허가서)으로 만듭니다. CPack의 코드는 프로그램에도 꾸러미에도 들어 있지 않습니다. Windows용은 설치 프로그램 없이 폴더로 제공합니다.

4. 아이콘
프로그램의 아이콘은 모두 이 프로그램을 위해 벨모라가 직접 그렸으며, 프로그램과 같은 조건으로 쓸 수 있습니다. 다른 곳의 아이콘 모음은 쓰지 않았습니다.</source>
        <translation>쿼린 컨버터 이용 안내

1. 이용 조건
쿼린 컨버터의 저작권은 벨모라(Velmora)에 있습니다. 누구나 무료로 설치하여 가게와 회사의 일에 쓸 수 있습니다. 고치지 않은 꾸러미 그대로라면 다른 사람에게 나누어 주어도 됩니다. 고친 프로그램을 나누어 주거나 프로그램을 팔려면 벨모라의 허락을 받아야 합니다. 자신이 쓰려고 프로그램을 고치는 일과, 바꾼 라이브러리의 잘못을 찾으려고 프로그램을 분석하는 일은 허락 없이 할 수 있습니다.
이 프로그램은 있는 그대로 제공하며, 법이 허용하는 한 어떤 보증도 하지 않습니다. 변환된 파일은 쓰기 전에 꼭 확인해 주십시오.

2. Qt 라이브러리
이 프로그램은 Qt 5.15 라이브러리(Qt Core, Gui, Widgets, Network)를 고치지 않고 동적으로 연결하여 씁니다. Qt의 저작권은 The Qt Company Ltd.와 그 밖의 기여자에게 있습니다. Qt는 GNU 약소 일반 공중 사용 허가서(LGPL) 제3판에 따라 쓸 수 있습니다. 허가서의 전문은 설치 폴더의 LGPL.TXT 파일에, 이 허가서가 바탕으로 삼는 GNU 일반 공중 사용 허가서(GPL) 제3판의 전문은 GPL.TXT 파일에 있습니다. Qt 라이브러리는 사용자가 다른 판으로 바꾸어 쓸 수 있습니다. languages 폴더의 파일에 함께 들어 있는 표준 단추와 파일 창의 번역은 Qt의 것으로, Qt 예외 1.0이 붙은 GPL 제3판에 따라 쓸 수 있습니다. Qt의 소스 코드는 Qt를 배포하는 곳(https://www.qt.io 또는 사용하는 운영체제의 배포처)에서 받을 수 있습니다.

3. 설치 꾸러미
Debian용 설치 꾸러미는 CMake에 들어 있는 CPack(BSD 3조항 허가서)으로 만듭니다. CPack의 코드는 프로그램에도 꾸러미에도 들어 있지 않습니다. Windows용은 설치 프로그램 없이 폴더로 제공합니다.

4. 아이콘
프로그램의 아이콘은 모두 이 프로그램을 위해 벨모라가 직접 그렸으며, 프로그램과 같은 조건으로 쓸 수 있습니다. 다른 곳의 아이콘 모음은 쓰지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>InputModeModel</name>
    <message>
        <source>Item</source>
        <translation>항목</translation>
    </message>
    <message>
        <source>Ex %1</source>
        <translation>예 %1</translation>
    </message>
</context>
<context>
    <name>KeySelectDialog</name>
    <message>
        <source>항목매칭</source>
        <translation>항목매칭</translation>
    </message>
    <message>
        <source>매칭시 비교될 항목을 각각 선택해 주십시오</source>
        <translation>매칭할 때 비교할 항목을 각각 선택해 주십시오</translation>
    </message>
    <message>
        <source>기존데이터 항목</source>
        <translation>기존 데이터 항목</translation>
    </message>
    <message>
        <source>기존데이터에서 매칭할 항목을 선택합니다.</source>
        <translation>기존 데이터에서 매칭할 항목을 선택합니다.</translation>
    </message>
    <message>
        <source>추가될 파일데이터 항목</source>
        <translation>추가될 파일의 항목</translation>
    </message>
    <message>
        <source>추가한 파일에서 매칭할 항목을 선택합니다.</source>
        <translation>추가한 파일에서 매칭할 항목을 선택합니다.</translation>
    </message>
    <message>
        <source>선택</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>선택된 항목들로 매칭하여 입력양식을 추가합니다</source>
        <translation>선택된 항목들로 매칭하여 입력양식을 추가합니다</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>입력양식을 추가하지 않습니다</source>
        <translation>입력양식을 추가하지 않습니다</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>쿼린 컨버터</source>
        <translation>쿼린 컨버터</translation>
    </message>
    <message>
        <source>입력</source>
        <translation>입력</translation>
    </message>
    <message>
        <source>입력파일:</source>
        <translation>입력파일:</translation>
    </message>
    <message>
        <source>입력파일</source>
        <translation>입력파일</translation>
    </message>
    <message>
        <source>입력파일을 추가합니다</source>
        <translation>입력파일을 추가합니다</translation>
    </message>
    <message>
        <source>선택된 입력파일을 제외합니다</source>
        <translation>선택된 입력파일을 제외합니다</translation>
    </message>
    <message>
        <source>출력</source>
        <translation>출력</translation>
    </message>
    <message>
        <source>변환설정:</source>
        <translation>변환설정:</translation>
    </message>
    <message>
        <source>변환설정</source>
        <translation>변환설정</translation>
    </message>
    <message>
        <source>변환에 사용할 설정을 선택합니다</source>
        <translation>변환에 사용할 설정을 선택합니다</translation>
    </message>
    <message>
        <source>선택된 설정을 수정합니다</source>
        <translation>선택된 설정을 수정합니다</translation>
    </message>
    <message>
        <source>출력파일:</source>
        <translation>출력파일:</translation>
    </message>
    <message>
        <source>출력파일을 지정합니다</source>
        <translation>출력파일을 지정합니다</translation>
    </message>
    <message>
        <source>파일을 변환합니다</source>
        <translation>파일을 변환합니다</translation>
    </message>
    <message>
        <source>변환</source>
        <translation>변환</translation>
    </message>
    <message>
        <source>생성된 명세서를 출력합니다.</source>
        <translation>생성된 명세서를 엽니다.</translation>
    </message>
    <message>
        <source>명세서
출력</source>
        <translation>명세서
출력</translation>
    </message>
    <message>
        <source>출력파일이 생성된 폴더를 탐색합니다.</source>
        <translation>출력파일이 생성된 폴더를 엽니다.</translation>
    </message>
    <message>
        <source>출력폴더
열기</source>
        <translation>출력폴더
열기</translation>
    </message>
    <message>
        <source>파일</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>환경설정</source>
        <translation>환경설정</translation>
    </message>
    <message>
        <source>정보</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>입력파일 추가</source>
        <translation>입력파일 추가</translation>
    </message>
    <message>
        <source>출력파일 지정</source>
        <translation>출력파일 지정</translation>
    </message>
    <message>
        <source>회사정보설정</source>
        <translation>회사정보 설정</translation>
    </message>
    <message>
        <source>회사정보를 설정합니다</source>
        <translation>회사정보를 설정합니다</translation>
    </message>
    <message>
        <source>프로그램 종료</source>
        <translation>프로그램 종료</translation>
    </message>
    <message>
        <source>프로그램을 종료합니다</source>
        <translation>프로그램을 종료합니다</translation>
    </message>
    <message>
        <source>쿼린컨버터 정보</source>
        <translation>쿼린 컨버터 정보</translation>
    </message>
    <message>
        <source>쿼린컨버터 정보를 보여줍니다</source>
        <translation>쿼린 컨버터 정보를 보여줍니다</translation>
    </message>
    <message>
        <source>파일 변환</source>
        <translation>파일 변환</translation>
    </message>
    <message>
        <source>명세서 출력</source>
        <translation>명세서 출력</translation>
    </message>
    <message>
        <source>도움말</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>도움말을 실행합니다</source>
        <translation>도움말을 엽니다</translation>
    </message>
    <message>
        <source>벨모라</source>
        <translation>벨모라</translation>
    </message>
    <message>
        <source>벨모라 홈페이지로 연결합니다</source>
        <translation>벨모라 홈페이지로 연결합니다</translation>
    </message>
    <message>
        <source>변환설정을 관리합니다</source>
        <translation>변환설정을 관리합니다</translation>
    </message>
    <message>
        <source>Input Files</source>
        <translation>입력파일</translation>
    </message>
    <message>
        <source>CSV Files (*.csv);;All Files (*.*)</source>
        <translation>CSV 파일 (*.csv);;모든 파일 (*.*)</translation>
    </message>
    <message>
        <source>Output File</source>
        <translation>출력파일</translation>
    </message>
    <message>
        <source>CSV File (*.csv)</source>
        <translation>CSV 파일 (*.csv)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>An error has occurred</source>
        <translation>오류가 발생했습니다</translation>
    </message>
    <message>
        <source>There is newer version available.
Do you want to update now?
(Restart Quorin Converter is required.

Current version : %1
Latest version : %2</source>
        <translation>새 버전이 있습니다.
지금 업데이트하시겠습니까?
(쿼린 컨버터를 다시 시작해야 합니다.)

현재 버전 : %1
최신 버전 : %2</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>업데이트 안내</translation>
    </message>
</context>
<context>
    <name>MergeDialog</name>
    <message>
        <source>병합 설정</source>
        <translation>병합 설정</translation>
    </message>
    <message>
        <source>병합방식</source>
        <translation>병합방식</translation>
    </message>
    <message>
        <source>중복제거시 병합여부와 방식을 설정합니다</source>
        <translation>중복을 제거할 때 병합할지와 그 방식을 설정합니다</translation>
    </message>
    <message>
        <source>병합 안함</source>
        <translation>병합 안 함</translation>
    </message>
    <message>
        <source>문자열 병합</source>
        <translation>문자열 병합</translation>
    </message>
    <message>
        <source>숫자열 합</source>
        <translation>숫자열 합</translation>
    </message>
    <message>
        <source>연결자</source>
        <translation>연결자</translation>
    </message>
    <message>
        <source>문자열 병합시 항목사이에 추가될 연결자 유형을 선택합니다</source>
        <translation>항목 사이에 추가될 연결자의 종류를 선택합니다</translation>
    </message>
    <message>
        <source>문자</source>
        <translation>문자</translation>
    </message>
    <message>
        <source>개행코드</source>
        <translation>개행코드</translation>
    </message>
    <message>
        <source>항목사이에 추가될 연결문자를 지정합니다</source>
        <translation>항목 사이에 추가될 연결문자를 지정합니다</translation>
    </message>
    <message>
        <source>LF(\n)</source>
        <translation>LF(\n)</translation>
    </message>
    <message>
        <source>LF개행 코드를 삽입합니다</source>
        <translation>LF 개행코드를 삽입합니다</translation>
    </message>
    <message>
        <source>CRLF(\r\n)</source>
        <translation>CRLF(\r\n)</translation>
    </message>
    <message>
        <source>CRLF개행 코드를 삽입합니다</source>
        <translation>CRLF 개행코드를 삽입합니다</translation>
    </message>
    <message>
        <source>확인</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>변경사항을 저장합니다</source>
        <translation>변경사항을 저장합니다</translation>
    </message>
    <message>
        <source>취소</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>변경사항을 저장하지 않습니다</source>
        <translation>변경사항을 저장하지 않습니다</translation>
    </message>
    <message>
        <source>Select new line code.</source>
        <translation>개행코드를 선택해 주십시오.</translation>
    </message>
</context>
<context>
    <name>OutputModeModel</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Double click to edit &apos;%1&apos;</source>
        <translation>두 번 클릭하여 &apos;%1&apos;의 이름을 바꿉니다</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>출력 내용</translation>
    </message>
    <message>
        <source>Double click to edit output items for &apos;%1&apos;</source>
        <translation>두 번 클릭하여 &apos;%1&apos;에 출력할 항목을 편집합니다</translation>
    </message>
    <message>
        <source>Conditions</source>
        <translation>조건</translation>
    </message>
    <message>
        <source>Double click to edit conditions for &apos;%1&apos;</source>
        <translation>두 번 클릭하여 &apos;%1&apos;의 조건을 편집합니다</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>규칙</translation>
    </message>
    <message>
        <source>Double click to edit rules for &apos;%1&apos;</source>
        <translation>두 번 클릭하여 &apos;%1&apos;의 규칙을 편집합니다</translation>
    </message>
    <message>
        <source>Distinct</source>
        <translation>중복제거</translation>
    </message>
    <message>
        <source>Check to delete duplication for &apos;%1&apos;</source>
        <translation>체크하여 &apos;%1&apos;의 중복을 제거합니다</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>Double click to edit merge option for &apos;%1&apos;</source>
        <translation>두 번 클릭하여 &apos;%1&apos;의 병합 설정을 편집합니다</translation>
    </message>
</context>
<context>
    <name>PdfRuleDialog</name>
    <message>
        <source>규칙설정</source>
        <translation>규칙설정</translation>
    </message>
    <message>
        <source>규칙</source>
        <translation>규칙</translation>
    </message>
    <message>
        <source>설정된 규칙을 추가합니다</source>
        <translation>설정된 규칙을 추가합니다</translation>
    </message>
    <message>
        <source>선택된 규칙을 삭제합니다</source>
        <translation>선택된 규칙을 삭제합니다</translation>
    </message>
    <message>
        <source>변경사항을 저장합니다</source>
        <translation>변경사항을 저장합니다</translation>
    </message>
    <message>
        <source>변경사항을 저장하지 않습니다</source>
        <translation>변경사항을 저장하지 않습니다</translation>
    </message>
</context>
<context>
    <name>PdfSetModel</name>
    <message>
        <source>[Auto]</source>
        <translation>[자동]</translation>
    </message>
    <message>
        <source>Check to print &apos;%1&apos;</source>
        <translation>체크하여 &apos;%1&apos; 항목을 출력합니다</translation>
    </message>
    <message>
        <source>Double click to edit output items for &apos;%1&apos;</source>
        <translation>두 번 클릭하여 &apos;%1&apos;에 출력할 항목을 편집합니다</translation>
    </message>
    <message>
        <source>Double click to edit rules for &apos;%1&apos;</source>
        <translation>두 번 클릭하여 &apos;%1&apos;의 규칙을 편집합니다</translation>
    </message>
    <message>
        <source>Cannot assign rules for &apos;%1&apos;</source>
        <translation>&apos;%1&apos;에는 규칙을 지정할 수 없습니다</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>출력 여부</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>출력 내용</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>규칙</translation>
    </message>
</context>
<context>
    <name>RuleDialog</name>
    <message>
        <source>규칙설정</source>
        <translation>규칙설정</translation>
    </message>
    <message>
        <source>병합 전 처리</source>
        <translation>병합 전 처리</translation>
    </message>
    <message>
        <source>드래그하여 순서변경이 가능합니다</source>
        <translation>드래그하여 순서변경이 가능합니다</translation>
    </message>
    <message>
        <source>설정된 규칙을 병합 전 처리에 추가합니다</source>
        <translation>설정된 규칙을 병합 전 처리에 추가합니다</translation>
    </message>
    <message>
        <source>선택된 병합 전 처리 규칙을 삭제합니다</source>
        <translation>선택된 병합 전 처리 규칙을 삭제합니다</translation>
    </message>
    <message>
        <source>선택된 규칙을 병합 후 처리로 이동합니다</source>
        <translation>선택된 규칙을 병합 후 처리로 이동합니다</translation>
    </message>
    <message>
        <source>선택된 규칙을 병합 전 처리로 이동합니다</source>
        <translation>선택된 규칙을 병합 전 처리로 이동합니다</translation>
    </message>
    <message>
        <source>병합 후 처리</source>
        <translation>병합 후 처리</translation>
    </message>
    <message>
        <source>설정된 규칙을 병합 후 처리에 추가합니다</source>
        <translation>설정된 규칙을 병합 후 처리에 추가합니다</translation>
    </message>
    <message>
        <source>선택된 병합 후 처리 규칙을 삭제합니다</source>
        <translation>선택된 병합 후 처리 규칙을 삭제합니다</translation>
    </message>
    <message>
        <source>변경사항을 저장합니다</source>
        <translation>변경사항을 저장합니다</translation>
    </message>
    <message>
        <source>변경사항을 저장하지 않습니다</source>
        <translation>변경사항을 저장하지 않습니다</translation>
    </message>
</context>
<context>
    <name>RulePages</name>
    <message>
        <source>문자열 길이수정</source>
        <translation>문자열 길이 수정</translation>
    </message>
    <message>
        <source>길이변경을 시작할 위치를 선택합니다</source>
        <translation>길이 변경을 시작할 위치를 선택합니다</translation>
    </message>
    <message>
        <source>처음부터</source>
        <translation>처음부터</translation>
    </message>
    <message>
        <source>끝에서</source>
        <translation>끝에서</translation>
    </message>
    <message>
        <source>변경할 길이를 지정합니다</source>
        <translation>변경할 길이를 지정합니다</translation>
    </message>
    <message>
        <source>자 만큼</source>
        <translation>자만큼</translation>
    </message>
    <message>
        <source>설정된 길이를 처리할 방법을 선택합니다</source>
        <translation>설정된 길이를 처리할 방법을 선택합니다</translation>
    </message>
    <message>
        <source>남기기</source>
        <translation>남기기</translation>
    </message>
    <message>
        <source>잘라내기</source>
        <translation>잘라내기</translation>
    </message>
    <message>
        <source>개행</source>
        <translation>개행</translation>
    </message>
    <message>
        <source>개행코드 처리</source>
        <translation>개행코드 처리</translation>
    </message>
    <message>
        <source>LF(\n)</source>
        <translation>LF(\n)</translation>
    </message>
    <message>
        <source>모든 개행코드를 LF개행코드로 치환합니다</source>
        <translation>모든 개행코드를 LF 개행코드로 치환합니다</translation>
    </message>
    <message>
        <source>CRLF(\r\n)</source>
        <translation>CRLF(\r\n)</translation>
    </message>
    <message>
        <source>모든 개행코드를 CRLF개행코드로 치환합니다</source>
        <translation>모든 개행코드를 CRLF 개행코드로 치환합니다</translation>
    </message>
    <message>
        <source>없애기(한줄로)</source>
        <translation>없애기(한 줄로)</translation>
    </message>
    <message>
        <source>모든 개행코드를 없애고 한줄로 만듭니다</source>
        <translation>모든 개행코드를 없애고 한 줄로 만듭니다</translation>
    </message>
    <message>
        <source>문자 삽입</source>
        <translation>문자 삽입</translation>
    </message>
    <message>
        <source>삽입위치</source>
        <translation>삽입위치</translation>
    </message>
    <message>
        <source>문자가 삽입될 위치를 선택합니다</source>
        <translation>문자가 삽입될 위치를 선택합니다</translation>
    </message>
    <message>
        <source>처음</source>
        <translation>처음</translation>
    </message>
    <message>
        <source>끝</source>
        <translation>끝</translation>
    </message>
    <message>
        <source>삽입문자</source>
        <translation>삽입문자</translation>
    </message>
    <message>
        <source>삽입 될 문자를 지정합니다</source>
        <translation>삽입될 문자를 지정합니다</translation>
    </message>
    <message>
        <source>문자 추출/치환</source>
        <translation>문자 추출/치환</translation>
    </message>
    <message>
        <source>검색</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>검색 할 문자를 지정합니다</source>
        <translation>검색할 문자를 지정합니다</translation>
    </message>
    <message>
        <source>검색 방법을 선택합니다</source>
        <translation>검색 방법을 선택합니다</translation>
    </message>
    <message>
        <source>과 일치</source>
        <translation>과 일치</translation>
    </message>
    <message>
        <source>과 불일치</source>
        <translation>과 불일치</translation>
    </message>
    <message>
        <source>을 포함</source>
        <translation>을 포함</translation>
    </message>
    <message>
        <source>을 미포함</source>
        <translation>을 미포함</translation>
    </message>
    <message>
        <source>으로 시작</source>
        <translation>으로 시작</translation>
    </message>
    <message>
        <source>으로 시작하지 않음</source>
        <translation>으로 시작하지 않음</translation>
    </message>
    <message>
        <source>으로 끝</source>
        <translation>으로 끝남</translation>
    </message>
    <message>
        <source>으로 끝나지 않음</source>
        <translation>으로 끝나지 않음</translation>
    </message>
    <message>
        <source>처리 범위를 선택합니다</source>
        <translation>처리 범위를 선택합니다</translation>
    </message>
    <message>
        <source>전체열</source>
        <translation>문자열 전체</translation>
    </message>
    <message>
        <source>일치문자만</source>
        <translation>일치 문자만</translation>
    </message>
    <message>
        <source>처리 방법을 선택합니다</source>
        <translation>처리 방법을 선택합니다</translation>
    </message>
    <message>
        <source>추출</source>
        <translation>추출</translation>
    </message>
    <message>
        <source>제외</source>
        <translation>제외</translation>
    </message>
    <message>
        <source>치환</source>
        <translation>치환</translation>
    </message>
    <message>
        <source>치환문자</source>
        <translation>치환문자</translation>
    </message>
    <message>
        <source>치환 할 문자열을 지정합니다</source>
        <translation>치환할 문자열을 지정합니다</translation>
    </message>
    <message>
        <source>문자종류 변환</source>
        <translation>문자종류 변환</translation>
    </message>
    <message>
        <source>소문자</source>
        <translation>소문자</translation>
    </message>
    <message>
        <source>모든 영문자를 소문자로 치환합니다</source>
        <translation>모든 영문자를 소문자로 치환합니다</translation>
    </message>
    <message>
        <source>대문자</source>
        <translation>대문자</translation>
    </message>
    <message>
        <source>모든 영문자를 대문자로 치환합니다</source>
        <translation>모든 영문자를 대문자로 치환합니다</translation>
    </message>
    <message>
        <source>전각문자</source>
        <translation>전각문자</translation>
    </message>
    <message>
        <source>모든 반각문자를 대응되는 전각문자로 치환합니다</source>
        <translation>반각문자를 대응되는 전각문자로 바꿉니다</translation>
    </message>
    <message>
        <source>반각문자</source>
        <translation>반각문자</translation>
    </message>
    <message>
        <source>모든 전각문자를 대응되는 반각문자로 치환합니다</source>
        <translation>전각문자를 대응되는 반각문자로 바꿉니다</translation>
    </message>
    <message>
        <source>히라가나</source>
        <translation>히라가나</translation>
    </message>
    <message>
        <source>모든 카타가나문자를 히라가나문자로 치환합니다</source>
        <translation>모든 가타카나 문자를 히라가나 문자로 치환합니다</translation>
    </message>
    <message>
        <source>카타가나</source>
        <translation>가타카나</translation>
    </message>
    <message>
        <source>모든 히라가나문자를 카타가나문자로 치환합니다</source>
        <translation>모든 히라가나 문자를 가타카나 문자로 치환합니다</translation>
    </message>
    <message>
        <source>공백제거</source>
        <translation>공백제거</translation>
    </message>
    <message>
        <source>처음과 끝</source>
        <translation>처음과 끝</translation>
    </message>
    <message>
        <source>문자열의 시작과 끝 부분의 공백을 제거합니다</source>
        <translation>문자열의 시작과 끝 부분의 공백을 제거합니다</translation>
    </message>
    <message>
        <source>모든 공백</source>
        <translation>모든 공백</translation>
    </message>
    <message>
        <source>문자열 내의 모든 공백을 제거합니다</source>
        <translation>앞뒤의 공백을 없애고 이어진 공백은 한 칸으로 줄입니다</translation>
    </message>
    <message>
        <source>Character &apos;,&apos; cannot be included.</source>
        <translation>쉼표(,)는 사용할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>StatementFields</name>
    <message>
        <source>Name</source>
        <translation>고객명</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message>
        <source>Post code</source>
        <translation>우편번호</translation>
    </message>
    <message>
        <source>Order number</source>
        <translation>주문번호</translation>
    </message>
    <message>
        <source>Order date</source>
        <translation>주문일</translation>
    </message>
    <message>
        <source>Product name</source>
        <translation>상품명</translation>
    </message>
    <message>
        <source>Product number</source>
        <translation>상품번호</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>수량</translation>
    </message>
    <message>
        <source>Unit price</source>
        <translation>단가</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>소계</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>상품합계</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>부가세</translation>
    </message>
    <message>
        <source>Shipping charge</source>
        <translation>배송비</translation>
    </message>
    <message>
        <source>C.O.D charge</source>
        <translation>대금상환 수수료</translation>
    </message>
    <message>
        <source>Total sum</source>
        <translation>총합계</translation>
    </message>
    <message>
        <source>Coupon</source>
        <translation>쿠폰</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>적립금</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>결제금액</translation>
    </message>
</context>
<context>
    <name>StatementHtml</name>
    <message>
        <source>Sum</source>
        <translation>상품합계</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>부가세</translation>
    </message>
    <message>
        <source>Shipping Charge</source>
        <translation>배송비</translation>
    </message>
    <message>
        <source>C.O.D Charge</source>
        <translation>대금상환 수수료</translation>
    </message>
    <message>
        <source>Total Sum</source>
        <translation>총합계</translation>
    </message>
    <message>
        <source>Coupon</source>
        <translation>쿠폰</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>적립금</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>결제금액</translation>
    </message>
    <message>
        <source>Order Detail</source>
        <translation>주문 내역</translation>
    </message>
    <message>
        <source>Order Number</source>
        <translation>주문번호</translation>
    </message>
    <message>
        <source>Order Date</source>
        <translation>주문일</translation>
    </message>
    <message>
        <source>Product</source>
        <translation>상품명</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>수량</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>단가</translation>
    </message>
    <message>
        <source>Subtotal</source>
        <translation>소계</translation>
    </message>
</context>
</TS>
