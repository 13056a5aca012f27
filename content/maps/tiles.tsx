<?xml version="1.0" encoding="UTF-8"?>
<tileset version="1.8" tiledversion="1.8.2" name="tiles" tilewidth="16" tileheight="16" tilecount="240" columns="30">
 <image source="../pictures/sheets/tiles.png" width="480" height="128"/>
 <tile id="0">
  <properties>
   <property name="code" type="int" value="1"/>
   <property name="name" value="water deep 1"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="1">
  <properties>
   <property name="code" type="int" value="2"/>
   <property name="name" value="water deep 2"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="2">
  <properties>
   <property name="code" type="int" value="3"/>
   <property name="name" value="water bank inner NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="3">
  <properties>
   <property name="code" type="int" value="4"/>
   <property name="name" value="water bank inner NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="4">
  <properties>
   <property name="code" type="int" value="5"/>
   <property name="name" value="water bank inner SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="5">
  <properties>
   <property name="code" type="int" value="6"/>
   <property name="name" value="water bank inner SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="6">
  <properties>
   <property name="code" type="int" value="7"/>
   <property name="name" value="grass 1"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="7">
  <properties>
   <property name="code" type="int" value="8"/>
   <property name="name" value="grass 2"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="8">
  <properties>
   <property name="code" type="int" value="9"/>
   <property name="name" value="grass 3"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="9">
  <properties>
   <property name="code" type="int" value="10"/>
   <property name="name" value="grass 4"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="10">
  <properties>
   <property name="code" type="int" value="11"/>
   <property name="name" value="grass white flowers"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="11">
  <properties>
   <property name="code" type="int" value="12"/>
   <property name="name" value="grass yellow flowers"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="12">
  <properties>
   <property name="code" type="int" value="13"/>
   <property name="event" value="battles on the ground of the wastes"/>
   <property name="name" value="waste floor 1"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="13">
  <properties>
   <property name="code" type="int" value="14"/>
   <property name="event" value="battles on the ground of the wastes"/>
   <property name="name" value="waste floor 2"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="14">
  <properties>
   <property name="code" type="int" value="15"/>
   <property name="name" value="roof lower W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="15">
  <properties>
   <property name="code" type="int" value="16"/>
   <property name="name" value="roof lower C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="16">
  <properties>
   <property name="code" type="int" value="17"/>
   <property name="name" value="roof lower E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="17">
  <properties>
   <property name="code" type="int" value="18"/>
   <property name="name" value="plateau rim NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="18">
  <properties>
   <property name="code" type="int" value="19"/>
   <property name="event" value="battles on the ground of the wastes"/>
   <property name="name" value="waste floor 3"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="19">
  <properties>
   <property name="code" type="int" value="20"/>
   <property name="name" value="marsh ground 1"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="20">
  <properties>
   <property name="code" type="int" value="21"/>
   <property name="name" value="marsh ground 2"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="21">
  <properties>
   <property name="code" type="int" value="22"/>
   <property name="name" value="roof upper W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="22">
  <properties>
   <property name="code" type="int" value="23"/>
   <property name="name" value="roof upper C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="23">
  <properties>
   <property name="code" type="int" value="24"/>
   <property name="name" value="roof upper E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="24">
  <properties>
   <property name="code" type="int" value="25"/>
   <property name="name" value="sand 1"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="25">
  <properties>
   <property name="code" type="int" value="26"/>
   <property name="name" value="sand 2"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="26">
  <properties>
   <property name="code" type="int" value="27"/>
   <property name="name" value="sand 3"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="27">
  <properties>
   <property name="code" type="int" value="28"/>
   <property name="name" value="sand shells"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="28">
  <properties>
   <property name="code" type="int" value="29"/>
   <property name="name" value="sandbank"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="29">
  <properties>
   <property name="code" type="int" value="30"/>
   <property name="name" value="stepping stones"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="30">
  <properties>
   <property name="code" type="int" value="31"/>
   <property name="name" value="bridge H west end"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="31">
  <properties>
   <property name="code" type="int" value="32"/>
   <property name="name" value="bridge H middle"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="32">
  <properties>
   <property name="code" type="int" value="33"/>
   <property name="name" value="bridge H east end"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="33">
  <properties>
   <property name="code" type="int" value="34"/>
   <property name="name" value="sign"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="34">
  <properties>
   <property name="code" type="int" value="35"/>
   <property name="name" value="bridge V middle"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="35">
  <properties>
   <property name="code" type="int" value="36"/>
   <property name="event" value="chest"/>
   <property name="name" value="chest"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="36">
  <properties>
   <property name="code" type="int" value="37"/>
   <property name="name" value="sea shore inner NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="37">
  <properties>
   <property name="code" type="int" value="38"/>
   <property name="name" value="sea shore inner NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="38">
  <properties>
   <property name="code" type="int" value="39"/>
   <property name="name" value="sea shore inner SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="39">
  <properties>
   <property name="code" type="int" value="40"/>
   <property name="name" value="sea shore inner SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="40">
  <properties>
   <property name="code" type="int" value="41"/>
   <property name="name" value="fence H"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="41">
  <properties>
   <property name="code" type="int" value="42"/>
   <property name="name" value="fence post"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="42">
  <properties>
   <property name="code" type="int" value="43"/>
   <property name="name" value="bridge V upper end"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="43">
  <properties>
   <property name="code" type="int" value="44"/>
   <property name="name" value="bridge V lower end"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="44">
  <properties>
   <property name="code" type="int" value="45"/>
   <property name="name" value="wall W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="45">
  <properties>
   <property name="code" type="int" value="46"/>
   <property name="name" value="wall window"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="46">
  <properties>
   <property name="code" type="int" value="47"/>
   <property name="event" value="door to the spring room or the round's book room"/>
   <property name="name" value="door house"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="47">
  <properties>
   <property name="code" type="int" value="48"/>
   <property name="name" value="wall E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="48">
  <properties>
   <property name="code" type="int" value="49"/>
   <property name="name" value="bush"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="49">
  <properties>
   <property name="code" type="int" value="50"/>
   <property name="name" value="marsh pool 1"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="50">
  <properties>
   <property name="code" type="int" value="51"/>
   <property name="name" value="marsh pool 2"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="51">
  <properties>
   <property name="code" type="int" value="52"/>
   <property name="name" value="stairs wide W"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="52">
  <properties>
   <property name="code" type="int" value="53"/>
   <property name="name" value="stairs wide C"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="53">
  <properties>
   <property name="code" type="int" value="54"/>
   <property name="name" value="stairs wide E"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="54">
  <properties>
   <property name="code" type="int" value="55"/>
   <property name="name" value="room wall top"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="55">
  <properties>
   <property name="code" type="int" value="56"/>
   <property name="name" value="room wall face"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="56">
  <properties>
   <property name="code" type="int" value="57"/>
   <property name="name" value="room wall lamp"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="57">
  <properties>
   <property name="code" type="int" value="58"/>
   <property name="name" value="bookshelf"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="58">
  <properties>
   <property name="code" type="int" value="59"/>
   <property name="name" value="room wall W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="59">
  <properties>
   <property name="code" type="int" value="60"/>
   <property name="name" value="room wall E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="60">
  <properties>
   <property name="code" type="int" value="61"/>
   <property name="name" value="plateau rim W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="61">
  <properties>
   <property name="code" type="int" value="62"/>
   <property name="name" value="stairs narrow"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="62">
  <properties>
   <property name="code" type="int" value="63"/>
   <property name="name" value="plateau rim E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="63">
  <properties>
   <property name="code" type="int" value="64"/>
   <property name="name" value="path NW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="64">
  <properties>
   <property name="code" type="int" value="65"/>
   <property name="name" value="path N"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="65">
  <properties>
   <property name="code" type="int" value="66"/>
   <property name="name" value="path NE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="66">
  <properties>
   <property name="code" type="int" value="67"/>
   <property name="name" value="sand edge NW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="67">
  <properties>
   <property name="code" type="int" value="68"/>
   <property name="name" value="sand edge N"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="68">
  <properties>
   <property name="code" type="int" value="69"/>
   <property name="name" value="sand edge NE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="69">
  <properties>
   <property name="code" type="int" value="70"/>
   <property name="name" value="path inner NW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="70">
  <properties>
   <property name="code" type="int" value="71"/>
   <property name="name" value="path inner NE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="71">
  <properties>
   <property name="code" type="int" value="72"/>
   <property name="name" value="trail H"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="72">
  <properties>
   <property name="code" type="int" value="73"/>
   <property name="event" value="book chest"/>
   <property name="name" value="book chest NW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="73">
  <properties>
   <property name="code" type="int" value="74"/>
   <property name="event" value="book chest"/>
   <property name="name" value="book chest NE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="74">
  <properties>
   <property name="code" type="int" value="75"/>
   <property name="name" value="sand edge inner NW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="75">
  <properties>
   <property name="code" type="int" value="76"/>
   <property name="name" value="forest floor NW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="76">
  <properties>
   <property name="code" type="int" value="77"/>
   <property name="name" value="forest floor N"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="77">
  <properties>
   <property name="code" type="int" value="78"/>
   <property name="name" value="forest floor NE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="78">
  <properties>
   <property name="code" type="int" value="79"/>
   <property name="name" value="ruins floor NW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="79">
  <properties>
   <property name="code" type="int" value="80"/>
   <property name="name" value="ruins floor N"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="80">
  <properties>
   <property name="code" type="int" value="81"/>
   <property name="name" value="ruins floor NE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="81">
  <properties>
   <property name="code" type="int" value="82"/>
   <property name="name" value="ruins wall NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="82">
  <properties>
   <property name="code" type="int" value="83"/>
   <property name="name" value="ruins wall N"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="83">
  <properties>
   <property name="code" type="int" value="84"/>
   <property name="name" value="ruins wall NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="84">
  <properties>
   <property name="code" type="int" value="85"/>
   <property name="name" value="shrine roof W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="85">
  <properties>
   <property name="code" type="int" value="86"/>
   <property name="name" value="shrine roof C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="86">
  <properties>
   <property name="code" type="int" value="87"/>
   <property name="name" value="shrine roof E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="87">
  <properties>
   <property name="code" type="int" value="88"/>
   <property name="name" value="woods NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="88">
  <properties>
   <property name="code" type="int" value="89"/>
   <property name="name" value="woods N"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="89">
  <properties>
   <property name="code" type="int" value="90"/>
   <property name="name" value="woods NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="90">
  <properties>
   <property name="code" type="int" value="91"/>
   <property name="name" value="great tree NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="91">
  <properties>
   <property name="code" type="int" value="92"/>
   <property name="name" value="great tree NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="92">
  <properties>
   <property name="code" type="int" value="93"/>
   <property name="name" value="fir upper"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="93">
  <properties>
   <property name="code" type="int" value="94"/>
   <property name="name" value="path W"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="94">
  <properties>
   <property name="code" type="int" value="95"/>
   <property name="name" value="path C"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="95">
  <properties>
   <property name="code" type="int" value="96"/>
   <property name="name" value="path E"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="96">
  <properties>
   <property name="code" type="int" value="97"/>
   <property name="name" value="sand edge W"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="97">
  <properties>
   <property name="code" type="int" value="98"/>
   <property name="name" value="sand edge C"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="98">
  <properties>
   <property name="code" type="int" value="99"/>
   <property name="name" value="sand edge E"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="99">
  <properties>
   <property name="code" type="int" value="100"/>
   <property name="name" value="path inner SW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="100">
  <properties>
   <property name="code" type="int" value="101"/>
   <property name="name" value="path inner SE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="101">
  <properties>
   <property name="code" type="int" value="102"/>
   <property name="name" value="trail V"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="102">
  <properties>
   <property name="code" type="int" value="103"/>
   <property name="event" value="book chest"/>
   <property name="name" value="book chest SW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="103">
  <properties>
   <property name="code" type="int" value="104"/>
   <property name="event" value="book chest"/>
   <property name="name" value="book chest SE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="104">
  <properties>
   <property name="code" type="int" value="105"/>
   <property name="name" value="sand edge inner NE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="105">
  <properties>
   <property name="code" type="int" value="106"/>
   <property name="name" value="forest floor W"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="106">
  <properties>
   <property name="code" type="int" value="107"/>
   <property name="name" value="forest floor C"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="107">
  <properties>
   <property name="code" type="int" value="108"/>
   <property name="name" value="forest floor E"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="108">
  <properties>
   <property name="code" type="int" value="109"/>
   <property name="name" value="ruins floor W"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="109">
  <properties>
   <property name="code" type="int" value="110"/>
   <property name="name" value="ruins floor C"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="110">
  <properties>
   <property name="code" type="int" value="111"/>
   <property name="name" value="ruins floor E"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="111">
  <properties>
   <property name="code" type="int" value="112"/>
   <property name="name" value="ruins wall W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="112">
  <properties>
   <property name="code" type="int" value="113"/>
   <property name="name" value="ruins floor cracked"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="113">
  <properties>
   <property name="code" type="int" value="114"/>
   <property name="name" value="ruins wall E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="114">
  <properties>
   <property name="code" type="int" value="115"/>
   <property name="name" value="shrine column W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="115">
  <properties>
   <property name="code" type="int" value="116"/>
   <property name="event" value="door to the spring room or the round's book room"/>
   <property name="name" value="door shrine"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="116">
  <properties>
   <property name="code" type="int" value="117"/>
   <property name="name" value="shrine column E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="117">
  <properties>
   <property name="code" type="int" value="118"/>
   <property name="name" value="woods W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="118">
  <properties>
   <property name="code" type="int" value="119"/>
   <property name="name" value="woods C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="119">
  <properties>
   <property name="code" type="int" value="120"/>
   <property name="name" value="woods E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="120">
  <properties>
   <property name="code" type="int" value="121"/>
   <property name="name" value="great tree SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="121">
  <properties>
   <property name="code" type="int" value="122"/>
   <property name="name" value="great tree SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="122">
  <properties>
   <property name="code" type="int" value="123"/>
   <property name="name" value="fir lower"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="123">
  <properties>
   <property name="code" type="int" value="124"/>
   <property name="name" value="path SW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="124">
  <properties>
   <property name="code" type="int" value="125"/>
   <property name="name" value="path S"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="125">
  <properties>
   <property name="code" type="int" value="126"/>
   <property name="name" value="path SE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="126">
  <properties>
   <property name="code" type="int" value="127"/>
   <property name="name" value="sand edge SW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="127">
  <properties>
   <property name="code" type="int" value="128"/>
   <property name="name" value="sand edge S"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="128">
  <properties>
   <property name="code" type="int" value="129"/>
   <property name="name" value="sand edge SE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="129">
  <properties>
   <property name="code" type="int" value="130"/>
   <property name="name" value="forest floor roots"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="130">
  <properties>
   <property name="code" type="int" value="131"/>
   <property name="event" value="door to the room of the last book"/>
   <property name="name" value="door gate"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="131">
  <properties>
   <property name="code" type="int" value="132"/>
   <property name="name" value="forest floor ferns"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="132">
  <properties>
   <property name="code" type="int" value="133"/>
   <property name="name" value="sand edge inner SW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="133">
  <properties>
   <property name="code" type="int" value="134"/>
   <property name="name" value="sand edge inner SE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="134">
  <properties>
   <property name="code" type="int" value="135"/>
   <property name="event" value="recovery point"/>
   <property name="name" value="recovery point"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="135">
  <properties>
   <property name="code" type="int" value="136"/>
   <property name="name" value="forest floor SW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="136">
  <properties>
   <property name="code" type="int" value="137"/>
   <property name="name" value="forest floor S"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="137">
  <properties>
   <property name="code" type="int" value="138"/>
   <property name="name" value="forest floor SE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="138">
  <properties>
   <property name="code" type="int" value="139"/>
   <property name="name" value="ruins floor SW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="139">
  <properties>
   <property name="code" type="int" value="140"/>
   <property name="name" value="ruins floor S"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="140">
  <properties>
   <property name="code" type="int" value="141"/>
   <property name="name" value="ruins floor SE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="141">
  <properties>
   <property name="code" type="int" value="142"/>
   <property name="name" value="ruins wall SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="142">
  <properties>
   <property name="code" type="int" value="143"/>
   <property name="name" value="ruins wall S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="143">
  <properties>
   <property name="code" type="int" value="144"/>
   <property name="name" value="ruins wall SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="144">
  <properties>
   <property name="code" type="int" value="145"/>
   <property name="name" value="plateau rim N"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="145">
  <properties>
   <property name="code" type="int" value="146"/>
   <property name="name" value="shrine steps"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="146">
  <properties>
   <property name="code" type="int" value="147"/>
   <property name="name" value="plateau rim NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="147">
  <properties>
   <property name="code" type="int" value="148"/>
   <property name="name" value="woods SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="148">
  <properties>
   <property name="code" type="int" value="149"/>
   <property name="name" value="woods S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="149">
  <properties>
   <property name="code" type="int" value="150"/>
   <property name="name" value="woods SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="150">
  <properties>
   <property name="code" type="int" value="151"/>
   <property name="name" value="water bank NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="151">
  <properties>
   <property name="code" type="int" value="152"/>
   <property name="name" value="water bank N"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="152">
  <properties>
   <property name="code" type="int" value="153"/>
   <property name="name" value="water bank NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="153">
  <properties>
   <property name="code" type="int" value="154"/>
   <property name="name" value="sea shore NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="154">
  <properties>
   <property name="code" type="int" value="155"/>
   <property name="name" value="sea shore N"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="155">
  <properties>
   <property name="code" type="int" value="156"/>
   <property name="name" value="sea shore NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="156">
  <properties>
   <property name="code" type="int" value="157"/>
   <property name="name" value="plateau lip SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="157">
  <properties>
   <property name="code" type="int" value="158"/>
   <property name="name" value="plateau lip S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="158">
  <properties>
   <property name="code" type="int" value="159"/>
   <property name="name" value="plateau lip SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="159">
  <properties>
   <property name="code" type="int" value="160"/>
   <property name="name" value="waste edge NW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="160">
  <properties>
   <property name="code" type="int" value="161"/>
   <property name="name" value="waste edge N"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="161">
  <properties>
   <property name="code" type="int" value="162"/>
   <property name="name" value="waste edge NE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="162">
  <properties>
   <property name="code" type="int" value="163"/>
   <property name="name" value="crag NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="163">
  <properties>
   <property name="code" type="int" value="164"/>
   <property name="name" value="crag N"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="164">
  <properties>
   <property name="code" type="int" value="165"/>
   <property name="name" value="crag NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="165">
  <properties>
   <property name="code" type="int" value="166"/>
   <property name="name" value="dark crag NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="166">
  <properties>
   <property name="code" type="int" value="167"/>
   <property name="name" value="dark crag N"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="167">
  <properties>
   <property name="code" type="int" value="168"/>
   <property name="name" value="dark crag NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="168">
  <properties>
   <property name="code" type="int" value="169"/>
   <property name="name" value="statue upper"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="169">
  <properties>
   <property name="code" type="int" value="170"/>
   <property name="name" value="marsh planks"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="170">
  <properties>
   <property name="code" type="int" value="171"/>
   <property name="name" value="lava NW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="171">
  <properties>
   <property name="code" type="int" value="172"/>
   <property name="name" value="lava N"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="172">
  <properties>
   <property name="code" type="int" value="173"/>
   <property name="name" value="lava NE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="173">
  <properties>
   <property name="code" type="int" value="174"/>
   <property name="name" value="dead tree"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="174">
  <properties>
   <property name="code" type="int" value="175"/>
   <property name="name" value="rock floor 1"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="175">
  <properties>
   <property name="code" type="int" value="176"/>
   <property name="name" value="rock floor 2"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="176">
  <properties>
   <property name="code" type="int" value="177"/>
   <property name="name" value="rock floor 3"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="177">
  <properties>
   <property name="code" type="int" value="178"/>
   <property name="name" value="rock and grass"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="178">
  <properties>
   <property name="code" type="int" value="179"/>
   <property name="name" value="rock rubble"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="179">
  <properties>
   <property name="code" type="int" value="180"/>
   <property name="name" value="rock cracked"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="180">
  <properties>
   <property name="code" type="int" value="181"/>
   <property name="name" value="water bank W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="181">
  <properties>
   <property name="code" type="int" value="182"/>
   <property name="name" value="water bank C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="182">
  <properties>
   <property name="code" type="int" value="183"/>
   <property name="name" value="water bank E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="183">
  <properties>
   <property name="code" type="int" value="184"/>
   <property name="name" value="sea shore W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="184">
  <properties>
   <property name="code" type="int" value="185"/>
   <property name="name" value="sea shore C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="185">
  <properties>
   <property name="code" type="int" value="186"/>
   <property name="name" value="sea shore E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="186">
  <properties>
   <property name="code" type="int" value="187"/>
   <property name="name" value="cliff face W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="187">
  <properties>
   <property name="code" type="int" value="188"/>
   <property name="name" value="cliff face C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="188">
  <properties>
   <property name="code" type="int" value="189"/>
   <property name="name" value="cliff face E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="189">
  <properties>
   <property name="code" type="int" value="190"/>
   <property name="name" value="waste edge W"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="190">
  <properties>
   <property name="code" type="int" value="191"/>
   <property name="name" value="waste edge C"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="191">
  <properties>
   <property name="code" type="int" value="192"/>
   <property name="name" value="waste edge E"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="192">
  <properties>
   <property name="code" type="int" value="193"/>
   <property name="name" value="crag W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="193">
  <properties>
   <property name="code" type="int" value="194"/>
   <property name="name" value="crag C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="194">
  <properties>
   <property name="code" type="int" value="195"/>
   <property name="name" value="crag E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="195">
  <properties>
   <property name="code" type="int" value="196"/>
   <property name="name" value="dark crag W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="196">
  <properties>
   <property name="code" type="int" value="197"/>
   <property name="name" value="dark crag C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="197">
  <properties>
   <property name="code" type="int" value="198"/>
   <property name="name" value="dark crag E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="198">
  <properties>
   <property name="code" type="int" value="199"/>
   <property name="name" value="statue lower"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="199">
  <properties>
   <property name="code" type="int" value="200"/>
   <property name="name" value="ruins pillar"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="200">
  <properties>
   <property name="code" type="int" value="201"/>
   <property name="name" value="lava W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="201">
  <properties>
   <property name="code" type="int" value="202"/>
   <property name="name" value="lava C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="202">
  <properties>
   <property name="code" type="int" value="203"/>
   <property name="name" value="lava E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="203">
  <properties>
   <property name="code" type="int" value="204"/>
   <property name="name" value="room wall S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="204">
  <properties>
   <property name="code" type="int" value="205"/>
   <property name="name" value="void"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="205">
  <properties>
   <property name="code" type="int" value="206"/>
   <property name="name" value="boards 1"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="206">
  <properties>
   <property name="code" type="int" value="207"/>
   <property name="name" value="boards 2"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="207">
  <properties>
   <property name="code" type="int" value="208"/>
   <property name="name" value="carpet W"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="208">
  <properties>
   <property name="code" type="int" value="209"/>
   <property name="name" value="carpet C"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="209">
  <properties>
   <property name="code" type="int" value="210"/>
   <property name="name" value="carpet E"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="210">
  <properties>
   <property name="code" type="int" value="211"/>
   <property name="name" value="water bank SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="211">
  <properties>
   <property name="code" type="int" value="212"/>
   <property name="name" value="water bank S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="212">
  <properties>
   <property name="code" type="int" value="213"/>
   <property name="name" value="water bank SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="213">
  <properties>
   <property name="code" type="int" value="214"/>
   <property name="name" value="sea shore SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="214">
  <properties>
   <property name="code" type="int" value="215"/>
   <property name="name" value="sea shore S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="215">
  <properties>
   <property name="code" type="int" value="216"/>
   <property name="name" value="sea shore SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="216">
  <properties>
   <property name="code" type="int" value="217"/>
   <property name="name" value="cliff foot W"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="217">
  <properties>
   <property name="code" type="int" value="218"/>
   <property name="name" value="cliff foot C"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="218">
  <properties>
   <property name="code" type="int" value="219"/>
   <property name="name" value="cliff foot E"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="219">
  <properties>
   <property name="code" type="int" value="220"/>
   <property name="name" value="waste edge SW"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="220">
  <properties>
   <property name="code" type="int" value="221"/>
   <property name="name" value="waste edge S"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="221">
  <properties>
   <property name="code" type="int" value="222"/>
   <property name="name" value="waste edge SE"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="222">
  <properties>
   <property name="code" type="int" value="223"/>
   <property name="name" value="crag SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="223">
  <properties>
   <property name="code" type="int" value="224"/>
   <property name="name" value="crag S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="224">
  <properties>
   <property name="code" type="int" value="225"/>
   <property name="name" value="crag SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="225">
  <properties>
   <property name="code" type="int" value="226"/>
   <property name="name" value="dark crag SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="226">
  <properties>
   <property name="code" type="int" value="227"/>
   <property name="name" value="dark crag S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="227">
  <properties>
   <property name="code" type="int" value="228"/>
   <property name="name" value="dark crag SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="228">
  <properties>
   <property name="code" type="int" value="229"/>
   <property name="name" value="waterfall"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="229">
  <properties>
   <property name="code" type="int" value="230"/>
   <property name="name" value="boulder"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="230">
  <properties>
   <property name="code" type="int" value="231"/>
   <property name="name" value="lava SW"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="231">
  <properties>
   <property name="code" type="int" value="232"/>
   <property name="name" value="lava S"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="232">
  <properties>
   <property name="code" type="int" value="233"/>
   <property name="name" value="lava SE"/>
   <property name="walkable" type="bool" value="false"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="1" y="1" width="14" height="14"/>
  </objectgroup>
 </tile>
 <tile id="233">
  <properties>
   <property name="code" type="int" value="234"/>
   <property name="event" value="battles on the ground of the wastes"/>
   <property name="name" value="waste floor 4"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
  <objectgroup draworder="index" id="2">
   <object id="1" x="3" y="3" width="10" height="10">
    <ellipse/>
   </object>
  </objectgroup>
 </tile>
 <tile id="234">
  <properties>
   <property name="code" type="int" value="235"/>
   <property name="name" value="last floor 1"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="235">
  <properties>
   <property name="code" type="int" value="236"/>
   <property name="name" value="last floor 2"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="236">
  <properties>
   <property name="code" type="int" value="237"/>
   <property name="name" value="last floor 3"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="237">
  <properties>
   <property name="code" type="int" value="238"/>
   <property name="name" value="last floor glyph"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="238">
  <properties>
   <property name="code" type="int" value="239"/>
   <property name="name" value="last stairs"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
 <tile id="239">
  <properties>
   <property name="code" type="int" value="240"/>
   <property name="name" value="exit mat"/>
   <property name="walkable" type="bool" value="true"/>
  </properties>
 </tile>
</tileset>
