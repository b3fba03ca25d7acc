<?xml version="1.0" encoding="windows-1252"?>
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
<xsl:output method="html" encoding="windows-1252" doctype-system="about:legacy-compat" indent="yes"/>
<!-- The list is read as ISO-8859-1: these are the characters that Windows-1252 has in the place of its control codes. -->
<xsl:variable name="codes" select="'&#x80;&#x82;&#x83;&#x84;&#x85;&#x86;&#x87;&#x88;&#x89;&#x8A;&#x8B;&#x8C;&#x8E;&#x91;&#x92;&#x93;&#x94;&#x95;&#x96;&#x97;&#x98;&#x99;&#x9A;&#x9B;&#x9C;&#x9E;&#x9F;'"/>
<xsl:variable name="lettres" select="'&#x20AC;&#x201A;&#x0192;&#x201E;&#x2026;&#x2020;&#x2021;&#x02C6;&#x2030;&#x0160;&#x2039;&#x0152;&#x017D;&#x2018;&#x2019;&#x201C;&#x201D;&#x2022;&#x2013;&#x2014;&#x02DC;&#x2122;&#x0161;&#x203A;&#x0153;&#x017E;&#x0178;'"/>
<xsl:template match="/">
<html lang="fr">
<head>
  <meta name="viewport" content="width=device-width, initial-scale=1"/>
  <meta name="color-scheme" content="light dark"/>
  <title>Relevé-vif – <![CDATA[%GEDCOM_FILENAME%]]></title>
  <style>
    :root {
      color-scheme: light dark;
      --fond: #faf8f3; --encre: #23262b; --doux: #5b616b; --trait: #dcd7cb; --raie: #f1ede4;
      --bande: #21505f; --sur-bande: #ffffff; --lien: #14586f; --cible: #ffedb0;
      --marge: clamp(.5rem, 3vw, 3rem);
    }
    @media (prefers-color-scheme: dark) {
      :root {
        --fond: #16191d; --encre: #e6e3dc; --doux: #a7adb6; --trait: #363c44; --raie: #1f242a;
        --bande: #25434f; --sur-bande: #f4f1ea; --lien: #8fcbe0; --cible: #4d4318;
      }
    }
    * { box-sizing: border-box; }
    html { font-size: clamp(1rem, .76rem + .3vw, 1.5rem); scroll-padding-top: 4rem; -webkit-text-size-adjust: 100%; text-size-adjust: 100%; }
    body {
      margin: 0; padding: 1.5rem var(--marge) 3rem; background: var(--fond); color: var(--encre);
      font: 1rem/1.45 system-ui, -apple-system, "Segoe UI", Roboto, "Noto Sans", "Liberation Sans", sans-serif;
    }
    main { width: fit-content; min-width: min(100%, 60rem); margin: 0 auto; }
    /* Under a table wider than the window, these stay in sight. */
    header, nav, footer { position: sticky; left: var(--marge); width: 0; min-width: min(100%, 100vw - 2 * var(--marge) - 1rem); }
    a { color: var(--lien); text-underline-offset: .15em; }
    a:focus-visible { outline: 2px solid var(--lien); outline-offset: 2px; }

    .genre { margin: 0; color: var(--doux); font-size: .85rem; letter-spacing: .12em; text-transform: uppercase; }
    h1 {
      margin: .1rem 0 .4rem; font: 600 clamp(1.5rem, 1.1rem + 1.6vw, 2.25rem)/1.15 "Iowan Old Style", "Palatino Linotype", Palatino, "Book Antiqua", Georgia, "Liberation Serif", serif;
      overflow-wrap: anywhere;
    }
    .faits { margin: 0 0 1rem; color: var(--doux); }
    .faits span { display: inline-block; margin-right: 1.25rem; }
    .faits b { color: var(--encre); font-weight: 600; }

    /* The links are parted by no-break spaces: without their size, the index wraps anywhere. */
    nav { display: flex; flex-wrap: wrap; gap: .3rem .15rem; margin: 0 0 1.25rem; font-size: 0; }
    nav a {
      min-width: 2rem; padding: .2rem .45rem; border: 1px solid var(--trait); border-radius: .3rem;
      font-size: 1rem; text-align: center; text-decoration: none;
    }
    nav a:hover { border-color: var(--bande); background: var(--bande); color: var(--sur-bande); }

    table { width: 100%; border-collapse: separate; border-spacing: 0; font-variant-numeric: lining-nums tabular-nums; }
    td { padding: .38rem .75rem; border-bottom: 1px solid var(--trait); text-align: left; vertical-align: top; overflow-wrap: break-word; }
    td:last-child { text-align: right; }
    thead td {
      position: sticky; top: 0; z-index: 1; background: var(--bande); color: var(--sur-bande); border: 0;
      font-weight: 600; line-height: 1.2; vertical-align: bottom;
    }
    /* Cells of broken widths would leave hairlines in the band. */
    thead td + td { box-shadow: -1px 0 var(--bande); }
    thead td.ancre + td { box-shadow: none; }
    tbody tr:nth-child(even) td { background: var(--raie); }
    tbody tr:hover td { box-shadow: inset 0 1px var(--doux), inset 0 -1px var(--doux); }
    tbody tr:target td { background: var(--cible); }
    tbody tr:has(:target) td { background: var(--cible); }
    td.ancre { width: 0; padding: 0; border: 0; font-size: 0; }

    footer { display: flex; flex-wrap: wrap; justify-content: space-between; gap: 0 2rem; color: var(--doux); font-size: .9rem; }

    @media (max-width: 40rem) {
      body { padding-top: 1rem; }
      table { font-size: .8125rem; line-height: 1.3; }
      td { padding: .4rem .3rem; }
      nav a { min-width: 2.5rem; padding: .45rem; }
    }
    @media (max-width: 22rem) {
      :root { --marge: .4rem; }
      table { font-size: .75rem; }
      td { padding: .35rem .2rem; }
    }

    @page large { size: landscape; }
    @page { margin: 15mm 12mm 18mm; @bottom-right { content: counter(page) " / " counter(pages); font-size: 8pt; } }
    @media print {
      :root {
        color-scheme: light; --fond: #fff; --encre: #000; --doux: #444; --trait: #bbb; --raie: #fff;
        --bande: #fff; --sur-bande: #000; --lien: #000; --cible: #fff;
      }
      html { font-size: 9.5pt; }
      body { padding: 0; }
      main { width: auto; min-width: 0; }
      header, footer { position: static; width: auto; min-width: 0; }
      nav, .retour { display: none; }
      h1 { font-size: 18pt; }
      table { font-size: inherit; line-height: 1.3; }
      td { padding: 1.2mm 2mm; border-bottom: .3pt solid #bbb; }
      thead { display: table-header-group; }
      thead td, thead td + td { position: static; border-bottom: 1pt solid #000; box-shadow: none; }
      thead td.ancre { border: 0; }
      tbody tr { break-inside: avoid; }
      tbody tr:hover td { box-shadow: none; }
      header, thead { break-after: avoid; }
      a { text-decoration: none; }
      /* Many columns: the sheet is turned, then the letters grow smaller. */
      body:has(thead td:nth-child(9)) { page: large; }
      body:has(thead td:nth-child(9)) table { font-size: 7.5pt; }
      body:has(thead td:nth-child(13)) table { font-size: 6pt; }
      body:has(thead td:nth-child(13)) td { padding: 1mm; }
    }
  </style>
</head>
<body id="haut">
<main>
<header>
  <p class="genre">Relevé-vif</p>
  <h1><![CDATA[%GEDCOM_FILENAME%]]></h1>
  <p class="faits"><span>Individus&#xA0;: <b>%INDIVIDUALS%</b></span><xsl:text> </xsl:text><span>Lignes GEDCOM&#xA0;: <b>%GEDCOM_LINES%</b></span><xsl:text> </xsl:text><span>Établi le <b>%DATE_LONG%</b> à <b>%TIME_SHORT%</b></span></p>
</header>
<nav aria-label="Index">%INDEX%</nav>
<table>
<thead>
<tr><td>%ELEMENT%</td></tr>
</thead>
<tbody>
<xsl:for-each select="SwiftRoll/INDI">
<tr><xsl:if test="tag"><xsl:attribute name="id"><xsl:value-of select="translate(tag, $codes, $lettres)"/></xsl:attribute></xsl:if>
<td><xsl:value-of select="translate(%ELEMENT%, $codes, $lettres)"/><xsl:if test="not(string(%ELEMENT%))"><xsl:text>&#xA0;</xsl:text></xsl:if></td>
</tr>
</xsl:for-each>
</tbody>
</table>
<footer>
  <p>Écrit par %SWIFTROLL%</p>
  <p class="retour"><a href="#haut">Haut de la page</a></p>
</footer>
</main>
</body>
</html>
</xsl:template>
</xsl:stylesheet>
